// A full board as a PDF file beside the bare painting of as many decoded pictures.
#include "fullFolder.h"

#include "analysis/printBoard.h"
#include "core/session.h"
#include "database/opening.h"
#include "platform/page.h"
#include "platform/pictureFile.h"

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace {

void pdfFloor(benchmark::State& state)
{
    std::vector<QImage> pictures;
    for (int card = 1; card <= fullDatabase; ++card)
        pictures.push_back(readPicture(pictureOf(card)));
    for (auto _ : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        QPainter painter(&writer);
        for (int i = 0; i < fullDatabase; ++i)
            painter.drawImage(QRect(i % 10 * 900, i / 10 * 900, 800, 600), pictures[std::size_t(i)]);
        painter.end();
        state.counters["MB"] = double(buffer.size()) / 1e6;
    }
}
BENCHMARK(pdfFloor)->Unit(benchmark::kMillisecond);

void fullBoardToPdf(benchmark::State& state)
{
    startFresh();
    openChosenFolder(fullFolder());
    for (auto _ : state) {
        const QByteArray pdf = pdfOf(landscape(usualSheet()), u"Cards"_s, drawBoard);
        state.counters["MB"] = double(pdf.size()) / 1e6;
    }
}
BENCHMARK(fullBoardToPdf)->Unit(benchmark::kMillisecond);

/// The small picture in the print dialog.
void fullBoardToPreview(benchmark::State& state)
{
    startFresh();
    openChosenFolder(fullFolder());
    for (auto _ : state)
        benchmark::DoNotOptimize(pictureOf(landscape(usualSheet()), {226, 160}, drawBoard));
}
BENCHMARK(fullBoardToPreview)->Unit(benchmark::kMillisecond);

} // namespace
