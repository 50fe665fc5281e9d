// Reading any description gives a session within its limits, and writing and reading it again gives the same
// one.
#include "core/session.h"
#include "fuzz/fuzzSupport.h"
#include "platform/desktop.h"
#include "store/descriptionFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

int problems = 0;

bool canBeWritten()
{
    const auto first = session.fieldName.begin() + 1;
    const bool names = std::all_of(first, first + session.numFields, canBeQuoted);
    const QString& status = session.databaseStatus;
    const bool bare = !status.contains(u',') && !status.contains(u'\n') && !status.contains(u'\r') &&
                      !status.startsWith(u'"') && status == status.trimmed();
    return names && bare && canBeQuoted(session.backgroundPicture);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    openWith(descriptionName, inputBytes(data, size));
    problems = 0;
    desktop.boxes.showMessage = [](MessageIcon, const QString&, const QString&) { ++problems; };

    readDbInfo();
    mustHold(session.numFields >= 1 && session.numFields <= 12, "one to twelve fields");
    mustHold(session.cardSize >= 0 && session.cardSize <= 2, "a known card size");
    mustHold(problems <= 1 + 1 + 3 + 12 * 15 + 2, "no more messages than statements");

    for (int f = 1; f <= session.numFields; ++f) {
        session.fieldType[f] = u"Abc"_s;
        session.fieldListItem[f] = {};
    }
    if (!canBeWritten())
        return 0;
    const Session written = session;
    writeDbInfo();
    problems = 0;
    readDbInfo();
    mustHold(problems == 0, "what was written reads without a problem");
    mustHold(session.numFields == written.numFields && session.fieldName == written.fieldName &&
                 session.databaseStatus == written.databaseStatus &&
                 session.fieldUseList == written.fieldUseList,
             "what was written is read");
    return 0;
}
