// Any bitmap gives an error or a picture without uninitialised pixels: decoding it twice, with different
// content in the memory that it is given, gives the same picture.
#include "fuzz/fuzzSupport.h"
#include "platform/errors.h"
#include "platform/pictureFile.h"

#include <cstring>
#include <optional>

#ifdef TALLYMOOR_FUZZ
#include <sanitizer/allocator_interface.h>
#endif

namespace {

int filling = 0x11;

#ifdef TALLYMOOR_FUZZ
void fillMemory(const volatile void* memory, size_t size)
{
    constexpr size_t zeroedAfterwards = 64 << 10; // calloc clears blocks up to this size after this hook
    if (size <= zeroedAfterwards)
        std::memset(const_cast<void*>(memory), filling, size);
}
#endif

std::optional<QImage> decoded(const QByteArray& file, int memory)
{
    filling = memory;
    try {
        return decodePicture(file);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
#ifdef TALLYMOOR_FUZZ
    static const int hooks =
        __sanitizer_install_malloc_and_free_hooks(fillMemory, [](const volatile void*) {});
    mustHold(hooks > 0, "memory can be filled");
#endif
    QByteArray file = inputBytes(data, size);
    file.replace(0, 2, "BM");
    const auto first = decoded(file, 0x11);
    const auto second = decoded(file, 0xEE);
    mustHold(first || !seedIsValid, "a valid bitmap is a picture");
    mustHold(first == second, "no pixel comes out of old memory");
    return 0;
}
