// Proves that the hunt finds faults: this reader trusts the count in the file and must crash soon.
#include "fuzz/fuzzSupport.h"
#include "platform/errors.h"
#include "platform/textFile.h"

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ItemReader reader(inputBytes(data, size));
    try {
        const int count = reader.nextInteger();
        if (reader.next() != "none"_L1)
            return 0;
        QString* names = new QString[13];
        for (int f = 1; f <= count; ++f)
            names[f] = reader.next(); // beyond the twelfth: the planted overrun
        delete[] names;
    } catch (const RuntimeError&) {
        return 0; // the names leak; leak checking is off in the hunt
    }
    return 0;
}
