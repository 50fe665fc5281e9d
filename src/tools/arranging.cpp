#include "tools/arranging.h"

#include "board/places.h"
#include "core/mainView.h"
#include "core/session.h"
#include "database/opening.h"
#include "platform/desktop.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr int lowerMargin = 36;
constexpr int rightMargin = 8;

double alongWidth(int i) { return (i - 1) * (session.board.width - session.box[0].width) / session.numCards; }

double alongHeight(int i)
{
    return (i - 1) * (session.board.height - session.box[0].height - lowerMargin) / session.numCards;
}

QPointF corner() { return {session.box[0].left, session.box[0].top}; }

QPointF onTop(int i) { return corner() + QPointF(alongWidth(i), 0); }
QPointF atBottom(int i)
{
    return {corner().x() + alongWidth(i), session.board.height - lowerMargin - session.box[0].height};
}
QPointF atLeft(int i) { return corner() + QPointF(0, alongHeight(i)); }
QPointF atRight(int i)
{
    return {session.board.width - session.box[0].width - rightMargin, corner().y() + alongHeight(i)};
}

struct Layout {
    const char* word;
    QPointF (*place)(int card); // null where another routine places the cards
    QPointF (*preview)(int i);  // of preview shape 0..5
};

constexpr Layout layouts[] = {
    {"Top", onTop, [](int i) { return QPointF(48 + 40 * i, 80); }},
    {"Bottom", atBottom, [](int i) { return QPointF(48 + 40 * i, 208); }},
    {"Left", atLeft, [](int i) { return QPointF(48, 80 + 26 * i); }},
    {"Right", atRight, [](int i) { return QPointF(248, 80 + 26 * i); }},
    {"Randomly", nullptr,
     [](int) {
         const double x = desktop.random();
         return QPointF(48 + x * 200, 80 + desktop.random() * 130);
     }},
    {"Tiled", nullptr, [](int i) { return QPointF(48 + 40 * (i % 3), i < 3 ? 80 : 106); }},
};

const Layout* layoutOf(const QString& word)
{
    const auto* found = std::find_if(std::begin(layouts), std::end(layouts), [&](const Layout& layout) {
        return word == QLatin1String(layout.word);
    });
    return found == std::end(layouts) ? nullptr : found;
}

void placeOne(const Layout& layout, int card)
{
    if (layout.place == nullptr) {
        placeCardAtRandom(card);
    } else {
        const QPointF place = layout.place(card);
        session.box[card].left = place.x();
        session.box[card].top = place.y();
    }
    session.cardStack.bringToFront(card);
}

} // namespace

QStringList arrangements()
{
    QStringList words;
    for (const Layout& layout : layouts)
        words.append(QString::fromLatin1(layout.word));
    return words;
}

void arrangeCards(const QString& word)
{
    const Layout* layout = layoutOf(word);
    if (word == "Tiled"_L1) {
        tileCards();
    } else if (layout != nullptr) {
        for (int card = 1; card <= session.numCards; ++card)
            placeOne(*layout, card);
    }
    mainView.redrawBoard();
}

std::array<QPointF, 6> arrangementPreview(const QString& word)
{
    const Layout* layout = layoutOf(word);
    std::array<QPointF, 6> places;
    for (int i = 0; i < 6; ++i)
        places[i] = (layout != nullptr ? *layout : layouts[0]).preview(i);
    return places;
}
