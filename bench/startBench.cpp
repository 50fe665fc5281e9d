// From the start of the process to the painted welcome dialog.
#include "startBench.h"

#include "core/FrmStlogo.h"
#include "core/startUp.h"
#include "platform/forms.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProcess>
#include <QTimer>

#include <cstdlib>

namespace {

/// Ends the process when the window is painted for the first time.
class EndWhenPainted : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, [] { std::_Exit(0); }); // when the controls are painted too
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
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--start"), what});
        if (!child.waitForFinished() || child.exitCode() != 0)
            state.SkipWithError("the window did not come");
    }
}

void startFloor(benchmark::State& state) { startProcess(state, QStringLiteral("bare")); }
BENCHMARK(startFloor)->Unit(benchmark::kMillisecond)->UseRealTime();

/// No floor of ours, but tells what the first text alone takes.
void startToOneWord(benchmark::State& state) { startProcess(state, QStringLiteral("word")); }
BENCHMARK(startToOneWord)->Unit(benchmark::kMillisecond)->UseRealTime();

void startToWelcome(benchmark::State& state) { startProcess(state, QStringLiteral("welcome")); }
BENCHMARK(startToWelcome)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

void startAndEnd(int argc, char** argv, const char* what)
{
    const QApplication application(argc, argv);
    if (qstrcmp(what, "bare") == 0)
        show(new QWidget);
    if (qstrcmp(what, "word") == 0)
        show(new QLabel(QStringLiteral("Welcome")));
    modalLoop = passSplashAndEndAtWelcome;
    runTallymoor();
    std::_Exit(1); // the welcome dialog never came
}
