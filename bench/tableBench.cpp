// The table of a full database: from the click on its button, and one step of its scroll bar.
#include "fullFolder.h"

#include "controls/forms.h"
#include "core/session.h"
#include "database/opening.h"
#include "window/Form1.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QPainter>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowHeight = 60;

/// Only paints the faces of the rows in view, for comparison.
class FacesWidget : public QWidget {
public:
    int first = 1;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        for (int row = 0; row < height() / rowHeight && first + row <= session.numCards; ++row)
            painter.drawImage(40, row * rowHeight, session.box[first + row].picture);
    }
};

void openFullTable()
{
    startFresh();
    openChosenFolder(fullFolder());
    form<Form1>().btnTable->click();
    QCoreApplication::processEvents();
}

void tableFloor(benchmark::State& state)
{
    startFresh();
    openChosenFolder(fullFolder());
    QCoreApplication::processEvents();
    FacesWidget faces;
    faces.resize(1280, 740);
    faces.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        faces.first = faces.first % 80 + 1;
        faces.update();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(tableFloor)->Unit(benchmark::kMillisecond);

/// The click on the mode button, up to the painted table.
void clickOnTable(benchmark::State& state)
{
    openFullTable();
    Form1& window = form<Form1>();
    for (auto _ : state) {
        state.PauseTiming();
        window.btnCards->click();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        window.btnTable->click();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(clickOnTable)->Unit(benchmark::kMillisecond);

void tableScrollStep(benchmark::State& state)
{
    openFullTable();
    auto* bar = form<Form1>().findChild<QScrollBar*>(u"gridScroll"_s);
    for (auto _ : state) {
        bar->setValue(bar->value() % 80 + 1);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(tableScrollStep)->Unit(benchmark::kMillisecond);

} // namespace
