#include "platform/stretching.h"

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace {

#ifdef __x86_64__
[[gnu::target("avx")]] void leaveUpperHalves() { _mm256_zeroupper(); }
#endif

/// Clears the upper halves of the vector registers. Qt's painting leaves them in use, and its scaling, which
/// uses the lower halves only, is then three times as slow.
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
