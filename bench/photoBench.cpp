// A phone's photo of 24 megapixels for the canvas: the time, and the memory at its peak beside the file.
#include "platform/pictureFile.h"

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <random>

namespace {

constexpr QSize photoSize(6000, 4000);
constexpr QSize needed(320, 242);

/// Noise over soft colours, so that the file is as long as a real photo's.
QByteArray photo()
{
    std::mt19937 chance(1);
    QImage picture(photoSize, QImage::Format_RGB888);
    for (int y = 0; y < picture.height(); ++y) {
        uchar* row = picture.scanLine(y);
        for (int x = 0; x < 3 * picture.width(); ++x)
            row[x] = uchar((x / 40 + y / 20) % 200 + int(chance() % 24));
    }
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    picture.save(&file, "JPG", 85);
    return file.data();
}

/// A line of the process' state, in MB.
double megabytes(const char* line)
{
    QFile state(QStringLiteral("/proc/self/status"));
    if (!state.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = state.readAll();
    return text.mid(text.indexOf(line) + qstrlen(line)).simplified().split(' ').first().toDouble() / 1024;
}

void forgetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

void decodePhoto(benchmark::State& state)
{
    const QByteArray bytes = photo();
    double peak = 0;
    for (auto _ : state) {
        state.PauseTiming();
        forgetPeak();
        const double before = megabytes("VmRSS:");
        state.ResumeTiming();
        benchmark::DoNotOptimize(decodePicture(bytes, needed));
        state.PauseTiming();
        peak = std::max(peak, megabytes("VmHWM:") - before);
        state.ResumeTiming();
    }
    state.counters["peakMB"] = peak;
    state.counters["fileMB"] = double(bytes.size()) / (1 << 20);
}
BENCHMARK(decodePhoto)->Unit(benchmark::kMillisecond);

} // namespace
