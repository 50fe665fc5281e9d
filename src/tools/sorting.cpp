#include "tools/sorting.h"

#include "core/session.h"
#include "platform/errors.h"
#include "platform/values.h"
#include "tools/conditions.h"
#include "tools/flight.h"
#include "tools/pacing.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Diagonal {
    double left;
    double top;
    double xStep;
    double yStep;
};

/// The diagonal from box(0)'s corner towards the lower right; each card covers at most half of the one
/// before.
Diagonal diagonalOfBoard()
{
    if (session.numCards == 0)
        throw RuntimeError(divisionByZero);
    const CardImage& corner = session.box[0];
    const CardImage& size = session.box[1];
    const double xStep = std::floor((session.board.width - corner.left - size.width) / session.numCards);
    const double yStep = std::floor((session.board.height - corner.top - size.height) / session.numCards);
    return {corner.left, corner.top, std::min(xStep, size.width / 2), std::min(yStep, size.height / 2)};
}

/// One way of sorting: the key of a card, the initial value in the search for the next card, and whether a
/// key beats the best so far. Equal keys do, so the last of them wins.
template <class Key>
struct Order {
    Key (*key)(const QString& value);
    Key (*seed)(int field);
    bool (*beats)(const Key& key, const Key& best);
};

template <class Key>
int nextCard(const Order<Key>& order, int field, const Key& seed)
{
    Key best = seed;
    int selected = 0;
    for (int card = 1; card <= session.numCards; ++card) {
        if (session.run.cardPlaced[card])
            continue;
        const Key key = order.key(session.cardValue[card][field]);
        if (order.beats(key, best)) {
            best = key;
            selected = card;
        }
    }
    return selected;
}

template <class Key>
void sortInView(const Order<Key>& order, int field)
{
    withErrorBox([&] {
        beginRun();
        const Diagonal line = diagonalOfBoard();
        for (int card = 1; card <= session.numCards; ++card)
            session.run.cardPlaced[card] = false;
        const Key seed = order.seed(field);
        for (int k = 1; k <= session.numCards; ++k) {
            const int selected = nextCard(order, field, seed);
            if (selected != 0) // 0 when values changed during a flight and no card is left
                flyToCorner(selected, line.left + line.xStep * (k - 1), line.top + line.yStep * (k - 1));
        }
        endRun();
    });
}

QString textKey(const QString& value) { return adjustCase(value); }
double numberKey(const QString& value) { return leadingNumber(value); }

QString greatestText(int field)
{
    QString greatest;
    for (int card = 1; card <= session.numCards; ++card)
        greatest = std::max(greatest, textKey(session.cardValue[card][field]));
    return greatest;
}

template <bool greatest>
double extremeNumber(int field)
{
    double extreme = numberKey(session.cardValue[1][field]);
    for (int card = 2; card <= session.numCards; ++card) {
        const double key = numberKey(session.cardValue[card][field]);
        extreme = greatest ? std::max(extreme, key) : std::min(extreme, key);
    }
    return extreme;
}

template <class Key>
bool atMost(const Key& key, const Key& best)
{
    return key <= best;
}

template <class Key>
bool atLeast(const Key& key, const Key& best)
{
    return key >= best;
}

constexpr Order<QString> textUp{textKey, greatestText, atMost<QString>};
constexpr Order<QString> textDown{textKey, [](int) { return QString(); }, atLeast<QString>};
constexpr Order<double> numbersUp{numberKey, extremeNumber<true>, atMost<double>};
constexpr Order<double> numbersDown{numberKey, extremeNumber<false>, atLeast<double>};

} // namespace

void sortTextUp(int field) { sortInView(textUp, field); }
void sortTextDown(int field) { sortInView(textDown, field); }
void sortNumbersUp(int field) { sortInView(numbersUp, field); }
void sortNumbersDown(int field) { sortInView(numbersDown, field); }

void sortByChosenField()
{
    const int field = session.chosenField;
    if (session.fieldType[field] == "Abc"_L1)
        session.sortDirection == "CBA"_L1 ? sortTextDown(field) : sortTextUp(field);
    else
        session.sortDirection == "ABC"_L1 ? sortNumbersUp(field) : sortNumbersDown(field);
}
