// Any record can be read, and writing and reading it again gives the same values.
#include "core/session.h"
#include "fuzz/fuzzSupport.h"
#include "store/cardFiles.h"
#include "store/cardSaving.h"

#include <algorithm>

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    openWith(u"CARDAAAA.tcd"_s, inputBytes(data, size));
    session.numFields = 12;
    loadCardValues(1);
    const CardFields read = session.cardValue[1];
    if (!std::all_of(read.begin(), read.end(), canBeQuoted))
        return 0;

    session.editor.DataBox = read;
    saveCardValues(1);
    loadCardValues(1);
    mustHold(session.cardValue[1] == read, "what was written is read");
    return 0;
}
