// From the start of the process to the painted welcome dialog.
#include "startBench.h"

#include "controls/forms.h"
#include "window/FrmStlogo.h"
#include "window/startUp.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProcess>
#include <QTimer>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// Ends the process after the window's first paint.
class EndWhenPainted : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, [] { std::_Exit(0); }); // after the controls are painted too
        }
        return false;
    }
};

EndWhenPainted endWhenPainted;

void show(QWidget* window)
{
    window->installEventFilter(&endWhenPainted);
    window->show();
    QApplication::exec();
}

/// The splash is loaded and painted but not waited for.
void passSplashAndEndAtWelcome(QDialog& dialog)
{
    if (dynamic_cast<FrmStlogo*>(&dialog)) {
        dialog.show();
        QCoreApplication::processEvents();
        dialog.hide();
        return;
    }
    dialog.installEventFilter(&endWhenPainted);
    dialog.exec();
}

void startProcess(benchmark::State& state, const QString& what)
{
    for (auto _ : state) {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--start"_s, what});
        if (!child.waitForFinished() || child.exitCode() != 0)
            state.SkipWithError("the window did not come");
    }
}

void startFloor(benchmark::State& state) { startProcess(state, u"bare"_s); }
BENCHMARK(startFloor)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Not a minimum for the program, but shows the cost of the first text.
void startToOneWord(benchmark::State& state) { startProcess(state, u"word"_s); }
BENCHMARK(startToOneWord)->Unit(benchmark::kMillisecond)->UseRealTime();

void startToWelcome(benchmark::State& state) { startProcess(state, u"welcome"_s); }
BENCHMARK(startToWelcome)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

void startAndEnd(int argc, char** argv, const char* what)
{
    const QApplication application(argc, argv);
    if (qstrcmp(what, "bare") == 0)
        show(new QWidget);
    if (qstrcmp(what, "word") == 0)
        show(new QLabel(u"Welcome"_s));
    modalLoop = passSplashAndEndAtWelcome;
    runTallymoor();
    std::_Exit(1); // the welcome dialog did not appear
}
