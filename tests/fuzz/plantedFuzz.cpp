// Shows that the hunt finds what it is for: this reader trusts the count in the file. It has to crash soon.
#include "fuzz/fuzzSupport.h"
#include "platform/errors.h"
#include "platform/textFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ItemReader reader(inputBytes(data, size));
    try {
        const int count = reader.nextInteger();
        if (reader.next() != QLatin1String("none"))
            return 0;
        QString* names = new QString[13];
        for (int f = 1; f <= count; ++f)
            names[f] = reader.next(); // beyond the twelfth: the planted overrun
        delete[] names;
    } catch (const RuntimeError&) {
        return 0; // the names leak; the hunt isn't told to look for that
    }
    return 0;
}
