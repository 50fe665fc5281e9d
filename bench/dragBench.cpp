// Dragging a card over a full board, on a fast folder and on one that takes 200 ms for every call.
#include "bareWidget.h"
#include "fullFolder.h"

#include "board/boardWidget.h"
#include "controls/forms.h"
#include "core/session.h"
#include "database/opening.h"
#include "database/refresh.h"
#include "support/slowMount.h"
#include "window/Form1.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int moves = 1000;
constexpr int slowCall = 200; // ms
constexpr int manyTicks = 10; // ms

void send(QWidget& board, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent event(type, at, board.mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&board, &event);
}

/// Drags card 1 over all others and returns the duration of the slowest single move, in ms.
double drag(QWidget& board)
{
    const QPointF grip(session.box[1].left + 10, session.box[1].top + 20);
    double longest = 0;
    send(board, QEvent::MouseButtonPress, grip, Qt::LeftButton, Qt::LeftButton);
    for (int i = 1; i <= moves; ++i) {
        QElapsedTimer timer;
        timer.start();
        send(board, QEvent::MouseMove, grip + QPointF(i * 0.9, i * 0.6), Qt::NoButton, Qt::LeftButton);
        QCoreApplication::processEvents();
        longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
    }
    send(board, QEvent::MouseButtonRelease, grip, Qt::LeftButton, Qt::NoButton);
    session.box[1].left = grip.x() - 10;
    session.box[1].top = grip.y() - 20;
    return longest;
}

void dragFloor(benchmark::State& state)
{
    BareWidget board;
    board.resize(1280, 800);
    board.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        for (int i = 1; i <= moves; ++i) {
            board.moveCard({15 + int(i * 0.9), 40 + int(i * 0.6)});
            QCoreApplication::processEvents();
        }
    }
    state.SetItemsProcessed(state.iterations() * moves);
}
BENCHMARK(dragFloor)->Unit(benchmark::kMillisecond);

void dragOver(benchmark::State& state, const QString& folder)
{
    startFresh();
    openChosenFolder(fullFolder());
    session.dbPath = folder; // look-ups of sounds go to this folder
    QCoreApplication::processEvents();
    double longest = 0;
    for (auto _ : state)
        longest = std::max(longest, drag(*form<Form1>().board));
    state.SetItemsProcessed(state.iterations() * moves);
    state.counters["longest move, ms"] = longest;
}

void dragOverFullBoard(benchmark::State& state) { dragOver(state, fullFolder()); }
BENCHMARK(dragOverFullBoard)->Unit(benchmark::kMillisecond);

/// With a much shorter refresh interval, so that many ticks fall into each drag.
void dragDuringRefresh(benchmark::State& state)
{
    startFresh();
    openChosenFolder(fullFolder());
    setRefresh(u"On"_s);
    const int interval = refreshTimer().interval();
    refreshTimer().setInterval(manyTicks);
    long ticks = 0;
    const auto counting = QObject::connect(&refreshTimer(), &QTimer::timeout, [&ticks] { ++ticks; });
    double longest = 0;
    for (auto _ : state)
        longest = std::max(longest, drag(*form<Form1>().board));
    QObject::disconnect(counting);
    refreshTimer().stop();
    refreshTimer().setInterval(interval);
    state.counters["longest move, ms"] = longest;
    state.counters["ticks a drag"] = double(ticks) / double(state.iterations());
}
BENCHMARK(dragDuringRefresh)->Unit(benchmark::kMillisecond);

void dragOnSlowFolder(benchmark::State& state)
{
    const SlowMount slow(slowCall, fullFolder());
    if (slow.path().isEmpty())
        state.SkipWithError(slow.reason().toUtf8().constData());
    else
        dragOver(state, slow.path());
}
BENCHMARK(dragOnSlowFolder)->Unit(benchmark::kMillisecond);

} // namespace
