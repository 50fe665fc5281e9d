// Opening and reloading a full database.
#include "fullFolder.h"

#include "core/session.h"
#include "database/loading.h"
#include "database/opening.h"
#include "platform/fonts.h"
#include "store/settings.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QImage>
#include <QPainter>

#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize faceSize(82, 62);

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("A file of the benchmark is missing");
    return file.readAll();
}

/// Only reading, decoding, scaling and labelling the same files, for comparison.
void openingFloor(benchmark::State& state)
{
    QFont font = namedFont(u"Comic Sans MS"_s, 10);
    font.setBold(true);
    fullFolder();
    for (auto _ : state) {
        for (int card = 1; card <= fullDatabase; ++card) {
            const QByteArray record = bytesOf(recordOf(card));
            QImage face = QImage::fromData(bytesOf(pictureOf(card)))
                              .convertToFormat(QImage::Format_RGB32)
                              .scaled(faceSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QPainter painter(&face);
            painter.setFont(font);
            const QString label = u"Monster %1"_s.arg(card);
            painter.drawText(QPoint(1, 13), label);
            painter.setPen(Qt::red);
            painter.drawText(QPoint(0, 12), label);
            painter.end();
            benchmark::DoNotOptimize(record.data());
            benchmark::DoNotOptimize(face.bits());
        }
    }
}
BENCHMARK(openingFloor)->Unit(benchmark::kMillisecond)->UseRealTime();

void open(benchmark::State& state, bool otherBefore)
{
    for (auto _ : state) {
        state.PauseTiming();
        startFresh();
        if (otherBefore)
            writeSetting(settingsFile(), u"Last DB"_s, u"Path"_s, QString());
        state.ResumeTiming();
        openChosenFolder(fullFolder());
    }
    state.counters["MB in memory"] = residentMegabytes();
}

/// The folder is already the last database in the settings.
void opening(benchmark::State& state) { open(state, false); }
BENCHMARK(opening)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The last database is another one, so that the settings are written and synced to disk.
void openingAnother(benchmark::State& state) { open(state, true); }
BENCHMARK(openingAnother)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Reading all records and pictures and comparing their bytes with those of the last time.
void reloadFloor(benchmark::State& state)
{
    std::map<QString, QByteArray> last;
    fullFolder();
    for (auto _ : state) {
        for (int card = 1; card <= fullDatabase; ++card) {
            for (const QString& path : {recordOf(card), pictureOf(card)}) {
                const QByteArray bytes = bytesOf(path);
                QByteArray& before = last[path];
                if (before != bytes)
                    before = bytes;
            }
        }
    }
}
BENCHMARK(reloadFloor)->Unit(benchmark::kMillisecond);

void reloadOfUnchangedFolder(benchmark::State& state)
{
    startFresh();
    openChosenFolder(fullFolder());
    for (auto _ : state)
        loadAllCards();
}
BENCHMARK(reloadOfUnchangedFolder)->Unit(benchmark::kMillisecond);

void reloadWithOneCardChanged(benchmark::State& state)
{
    startFresh();
    openChosenFolder(fullFolder());
    const QByteArray pictures[] = {bytesOf(pictureOf(50)), bytesOf(pictureOf(51))};
    int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        QFile file(pictureOf(50));
        if (!file.open(QIODevice::WriteOnly) || file.write(pictures[++round % 2]) < 0)
            qFatal("The benchmark's picture can't be written");
        file.close();
        state.ResumeTiming();
        loadAllCards();
    }
}
BENCHMARK(reloadWithOneCardChanged)->Unit(benchmark::kMillisecond);

} // namespace
