#include "platform/stretching.h"

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace {

#ifdef __x86_64__
[[gnu::target("avx")]] void leaveUpperHalves() { _mm256_zeroupper(); }
#endif

/// Qt's painting leaves the upper halves of the processor's vector registers in use. Its scaling uses the
/// lower halves alone and then takes three times as long.
void prepareRegisters()
{
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx"))
        leaveUpperHalves();
#endif
}

} // namespace

QImage stretched(const QImage& picture, const QSize& size)
{
    prepareRegisters();
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
