// A card flying over a full board at the pace that every machine keeps, the same without that pace, and the
// rules of sort, group and find without flights. On a screen the window system takes its share of each round:
// run these under a virtual one too.
#include "allocations.h"
#include "bareWidget.h"
#include "fullFolder.h"

#include "board/boardWidget.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "database/opening.h"
#include "platform/desktop.h"
#include "platform/realDesktop.h"
#include "tools/conditions.h"
#include "tools/flight.h"
#include "tools/grouping.h"
#include "tools/sorting.h"
#include "window/Form1.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double farLeft = 15;
constexpr double farRight = 1100;
constexpr double top = 400;
constexpr int textField = 1;
constexpr int numberField = 2;

void waitUntilShown(const QWidget& window)
{
    while (!window.windowHandle() || !window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

class PaintCounter : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    long paints = 0;
};

void flightFloor(benchmark::State& state)
{
    unloadAllForms();
    BareWidget board;
    board.resize(1280, 800);
    board.show();
    waitUntilShown(board);
    long rounds = 0;
    for (auto _ : state) {
        for (double left = farLeft; left < farRight; left += 0.5, ++rounds) {
            board.moveCard(QPointF(left, top).toPoint());
            QCoreApplication::processEvents();
        }
    }
    state.SetItemsProcessed(rounds);
}
BENCHMARK(flightFloor)->Unit(benchmark::kMillisecond)->UseRealTime();

void openFullBoard()
{
    startFresh();
    openChosenFolder(fullFolder());
    waitUntilShown(form<Form1>());
    session.run.animationSpeed = 1;
    session.run.stopped = false;
}

void putCardAtStart()
{
    session.box[1].left = farLeft;
    session.box[1].top = top;
    mainView.redrawCard(1);
    QCoreApplication::processEvents();
}

/// From the left to the right of a board on which 98 other cards lie, in the steps of twice the usual speed.
void flight(benchmark::State& state, const std::function<void()>& yield)
{
    openFullBoard();
    long rounds = 0;
    desktop.yield = [&] {
        ++rounds;
        yield();
    };
    PaintCounter counter;
    form<Form1>().board->installEventFilter(&counter);
    long paints = 0;
    for (auto _ : state) {
        state.PauseTiming();
        putCardAtStart();
        counter.paints = 0;
        state.ResumeTiming();
        flyAlong(1, Axis::x, farRight);
        paints += counter.paints;
    }
    form<Form1>().board->removeEventFilter(&counter);
    state.counters["rounds"] = benchmark::Counter(double(rounds), benchmark::Counter::kIsRate);
    state.counters["paints"] = benchmark::Counter(double(paints), benchmark::Counter::kIsRate);
}

/// Real time against processor time tells how busy waiting keeps the processor.
void pacedFlight(benchmark::State& state)
{
    installDesktop();
    const auto paced = desktop.yield; // a copy, since flight() replaces it
    flight(state, paced);
}
BENCHMARK(pacedFlight)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

/// As fast as rounds can follow one another.
void flightWithoutPace(benchmark::State& state)
{
    flight(state, [] { QCoreApplication::processEvents(); });
}
BENCHMARK(flightWithoutPace)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The flight only, without painting.
void flightWithEmptyYield(benchmark::State& state)
{
    openFullBoard();
    long rounds = 0;
    desktop.yield = [&rounds] { ++rounds; };
    mainView.redrawCard = [](int) {};
    long allocations = 0;
    for (auto _ : state) {
        session.box[1].left = farLeft;
        countAllocations();
        flyAlong(1, Axis::x, farRight);
        allocations += allocationsCounted();
    }
    state.SetItemsProcessed(rounds);
    state.counters["allocations"] = double(allocations);
}
BENCHMARK(flightWithEmptyYield)->Unit(benchmark::kMicrosecond);

// ---- the rules ----

/// Every flight arrives in one step, and nothing is painted.
void flyAtOnce()
{
    openFullBoard();
    mainView = blankMainView();
    mainView.showSpeedWindow = [] { session.run.animationSpeed = 1e9; };
    mainView.measureLabel = [](const QString&, double& width, double& height) { width = height = 20; };
}

std::vector<QString> textKeys()
{
    std::vector<QString> keys;
    for (int card = 1; card <= session.numCards; ++card)
        keys.push_back(session.cardValue[card][textField].toUpper());
    return keys;
}

std::vector<double> numberKeys()
{
    std::vector<double> keys;
    for (int card = 1; card <= session.numCards; ++card)
        keys.push_back(session.cardValue[card][numberField].toDouble());
    return keys;
}

/// The standard library's sort of the same keys, for comparison.
void sortingFloor(benchmark::State& state)
{
    openFullBoard();
    for (auto _ : state) {
        auto up = textKeys();
        std::stable_sort(up.begin(), up.end());
        auto down = textKeys();
        std::stable_sort(down.begin(), down.end(), std::greater<>());
        auto numbersUp = numberKeys();
        std::stable_sort(numbersUp.begin(), numbersUp.end());
        auto numbersDown = numberKeys();
        std::stable_sort(numbersDown.begin(), numbersDown.end(), std::greater<>());
        benchmark::DoNotOptimize(up.data());
        benchmark::DoNotOptimize(down.data());
        benchmark::DoNotOptimize(numbersUp.data());
        benchmark::DoNotOptimize(numbersDown.data());
    }
}
BENCHMARK(sortingFloor)->Unit(benchmark::kMicrosecond);

void sortingWithoutFlights(benchmark::State& state)
{
    flyAtOnce();
    for (auto _ : state) {
        sortTextUp(textField);
        sortTextDown(textField);
        sortNumbersUp(numberField);
        sortNumbersDown(numberField);
    }
}
BENCHMARK(sortingWithoutFlights)->Unit(benchmark::kMicrosecond);

/// Counting the same values in a sorted list, for comparison.
void groupingFloor(benchmark::State& state)
{
    openFullBoard();
    for (auto _ : state) {
        auto keys = textKeys();
        std::sort(keys.begin(), keys.end());
        benchmark::DoNotOptimize(std::unique(keys.begin(), keys.end()));
    }
}
BENCHMARK(groupingFloor)->Unit(benchmark::kMicrosecond);

/// Every card has a different value, which is the worst case.
void groupingWithoutFlights(benchmark::State& state)
{
    flyAtOnce();
    for (auto _ : state) {
        buildGroups(textField);
        moveCardsToGroups(textField);
    }
}
BENCHMARK(groupingWithoutFlights)->Unit(benchmark::kMicrosecond);

/// Each card's value in capitals compared in seven ways, each card's number in six.
void conditionsFloor(benchmark::State& state)
{
    openFullBoard();
    const QString text = u"MONSTER 50"_s;
    const double number = 50;
    for (auto _ : state) {
        int held = 0;
        for (const QString& key : textKeys())
            held += (key == text) + (key != text) + key.contains(text) + key.startsWith(text) +
                    key.endsWith(text) + (key < text) + (key > text);
        for (const double key : numberKeys())
            held += (key == number) + (key > number) + (key < number) + (key >= number) + (key <= number) +
                    (key != number);
        benchmark::DoNotOptimize(held);
    }
}
BENCHMARK(conditionsFloor)->Unit(benchmark::kMicrosecond);

int cardsFound(int field, const QString& value)
{
    int found = 0;
    for (const QString& word : comparisonWords(session.fieldType[field])) {
        session.findRow[0] = {QString::number(field), session.fieldName[field], word, value};
        for (int card = 1; card <= session.numCards; ++card)
            found += testCondition(0, card) ? 1 : 0;
    }
    return found;
}

void allConditions(benchmark::State& state)
{
    openFullBoard();
    for (auto _ : state)
        benchmark::DoNotOptimize(cardsFound(textField, u"Monster 50"_s) + cardsFound(numberField, u"50"_s));
}
BENCHMARK(allConditions)->Unit(benchmark::kMicrosecond);

} // namespace
