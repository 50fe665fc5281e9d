// With any settings file, a key that was written can be read back, and the others are unchanged.
#include "fuzz/fuzzSupport.h"
#include "store/settings.h"

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString name = u"tallymoor.ini"_s;
    openWith(name, inputBytes(data, size));
    const QString file = fuzzFolder() + u'/' + name;
    const auto read = [&](const char* section, const char* key) {
        return readSetting(file, QString::fromLatin1(section), QString::fromLatin1(key), u"absent"_s);
    };
    const QString sameSection = read("S", "other");
    const QString otherSection = read("T", "key");
    mustHold(sameSection.size() <= 199 && otherSection.size() <= 199, "values fit the buffer");

    for (const char* value : {"1", "a much longer value", ""}) {
        writeSetting(file, u"S"_s, u"key"_s, QString::fromLatin1(value));
        mustHold(read("S", "key") == QLatin1String(value), "what was written is read");
    }
    mustHold(read("S", "other") == sameSection && read("T", "key") == otherSection,
             "other keys keep their values");
    return 0;
}
