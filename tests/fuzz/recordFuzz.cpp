// Any record reads, and what was read survives writing and reading.
#include "core/session.h"
#include "fuzz/fuzzSupport.h"
#include "store/cardFiles.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    openWith(QStringLiteral("CARDAAAA.tcd"), inputBytes(data, size));
    session.numFields = 12;
    loadCardValues(1);
    const CardFields read = session.cardValue[1];
    if (!std::all_of(read.begin(), read.end(), canBeQuoted))
        return 0;

    session.DataBox = read;
    saveCardValues(1);
    loadCardValues(1);
    mustHold(session.cardValue[1] == read, "what was written is read");
    return 0;
}
