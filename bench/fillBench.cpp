// The paint pot on a whole canvas, empty and crowded, against one pass over the pixels.
#include "paint/floodFill.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

constexpr QSize canvas(320, 242);
constexpr QRgb white = 0xFFFFFFFF;

QImage blankCanvas()
{
    QImage picture(canvas, QImage::Format_RGB32);
    picture.fill(white);
    return picture;
}

/// A comb: walls two pixels apart that leave one long way up and down through the whole canvas.
QImage combCanvas()
{
    QImage picture = blankCanvas();
    for (int x = 1; x < canvas.width(); x += 2) {
        const int gap = x / 2 % 2 == 0 ? 0 : canvas.height() - 1;
        for (int y = 0; y < canvas.height(); ++y) {
            if (y != gap)
                picture.setPixel(x, y, 0xFF000000);
        }
    }
    return picture;
}

void fillFloor(benchmark::State& state)
{
    QImage picture = blankCanvas();
    auto* pixels = reinterpret_cast<QRgb*>(picture.bits());
    QRgb colour = 0xFF000000;
    for (auto _ : state) {
        std::replace(pixels, pixels + canvas.width() * canvas.height(), picture.pixel(0, 0), ++colour);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(fillFloor)->Unit(benchmark::kMicrosecond);

void fill(benchmark::State& state, QImage picture)
{
    QRgb colour = 0xFF000001;
    for (auto _ : state)
        floodFill(picture, {0, 0}, ++colour);
}
BENCHMARK_CAPTURE(fill, blank, blankCanvas())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(fill, comb, combCanvas())->Unit(benchmark::kMicrosecond);

} // namespace
