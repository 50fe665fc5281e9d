// A chart of forty bars beside the bare painting of the same shapes, and the way from the wizard's OK to the
// chart.
#include "fullFolder.h"

#include "analysis/graph.h"
#include "analysis/groupTable.h"
#include "controls/chartView.h"
#include "controls/forms.h"
#include "core/session.h"
#include "database/opening.h"
#include "window/Form1.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int bars = 40;
constexpr QSize chartSize(1024, 560);

Chart fortyBars()
{
    Chart chart;
    chart.titleText = u"How many legs?"_s;
    chart.setCounts(bars, 1);
    for (int row = 1; row <= bars; ++row) {
        chart.setRowLabel(row, u"Animal %1"_s.arg(row));
        chart.setData(row, 1, QString::number(row * 7919 % 13));
    }
    return chart;
}

ChartLook look()
{
    ChartLook chosen{QFont(u"Andika"_s), Qt::black, Qt::white, Qt::lightGray, Qt::blue, {}};
    chosen.font.setPixelSize(17);
    chosen.fills.fill(Qt::cyan);
    return chosen;
}

/// The same rectangles, lines and words, without asking what they are.
void chartFloor(benchmark::State& state)
{
    const ChartLayout layout = layOutChart(fortyBars(), chartSize, look().font);
    QImage image(chartSize, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(image.rect(), Qt::white);
        painter.setPen(QPen(Qt::lightGray, 1));
        for (const ChartLine& line : layout.lines)
            painter.drawPolyline(line.points);
        painter.setPen(QPen(Qt::black, 2));
        painter.setBrush(Qt::cyan);
        for (const ChartShape& shape : layout.shapes)
            painter.drawPath(shape.path);
        painter.setFont(look().font);
        for (const ChartText& text : layout.texts) {
            painter.resetTransform();
            painter.translate(text.anchor);
            painter.rotate(text.angle);
            painter.drawText(QPointF(-text.align * text.length, 6), text.text);
        }
    }
}
BENCHMARK(chartFloor)->Unit(benchmark::kMillisecond);

void paintFortyBars(benchmark::State& state)
{
    const ChartLayout layout = layOutChart(fortyBars(), chartSize, look().font);
    QImage image(chartSize, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        paintChart(painter, layout, look());
    }
}
BENCHMARK(paintFortyBars)->Unit(benchmark::kMillisecond);

void layOutFortyBars(benchmark::State& state)
{
    const Chart chart = fortyBars();
    for (auto _ : state)
        benchmark::DoNotOptimize(layOutChart(chart, chartSize, look().font));
}
BENCHMARK(layOutFortyBars)->Unit(benchmark::kMillisecond);

/// What follows the wizard's OK: all data of forty cards, sorted, drawn and painted.
void wizardToChart(benchmark::State& state)
{
    startFresh();
    openChosenFolder(fullFolder());
    session.numCards = bars;
    for (int card = 1; card <= bars; ++card)
        session.cardValue[card][1] = QString::number(card * 7919 % 13);
    session.graph.showAllData = true;
    for (auto _ : state) {
        state.PauseTiming();
        session.window.MSChart.visible = false;
        form<Form1>().showControls();
        session.graph.graphTitle += u'.'; // another chart than the last
        QCoreApplication::processEvents();
        state.ResumeTiming();
        listValues(1);
        findGraphMax();
        sortGroups(1);
        drawGraph();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(wizardToChart)->Unit(benchmark::kMillisecond);

} // namespace
