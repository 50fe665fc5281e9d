// A report on a full database: 99 cards with twelve fields each, made and shown, against putting together the
// same text.
#include "fullFolder.h"

#include "analysis/report.h"
#include "analysis/reportForm.h"
#include "controls/forms.h"
#include "core/session.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

/// A full database, and a template of about ninety letters with all its fields.
QString templateForFullDatabase()
{
    session = {};
    session.numCards = session.maxCards;
    session.numFields = session.maxFields;
    QString text;
    for (int f = 1; f <= session.numFields; ++f) {
        session.fieldName[f] = u"Field %1"_s.arg(f);
        text += u"and my <<Field %1>> "_s.arg(f);
        for (int card = 1; card <= session.numCards; ++card)
            session.cardValue[card][f] = u"value %1 of it"_s.arg(card);
    }
    return text;
}

void reportFloor(benchmark::State& state)
{
    templateForFullDatabase();
    for (auto _ : state) {
        QString report;
        for (int card = 1; card <= session.numCards; ++card) {
            for (int f = 1; f <= session.numFields; ++f)
                report += u"and my "_s + session.cardValue[card][f] + u' ';
            report += u" \r\n"_s;
        }
        benchmark::DoNotOptimize(report);
    }
}
BENCHMARK(reportFloor)->Unit(benchmark::kMillisecond);

void reportText(benchmark::State& state)
{
    const QString text = templateForFullDatabase();
    for (auto _ : state) {
        QString report;
        appendReport(text, report);
        benchmark::DoNotOptimize(report);
    }
}
BENCHMARK(reportText)->Unit(benchmark::kMillisecond);

/// From the click on the tab until the report is painted.
void reportInView(benchmark::State& state)
{
    startFresh();
    const QString text = templateForFullDatabase();
    auto& window = form<reportForm>();
    window.design->setPlainText(text);
    window.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        state.PauseTiming();
        window.repTab->setCurrentIndex(0);
        window.repaint();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        window.repTab->setCurrentIndex(1);
        window.repaint();
    }
    unload<reportForm>();
}
BENCHMARK(reportInView)->Unit(benchmark::kMillisecond);

} // namespace
