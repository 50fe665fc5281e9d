#include "board/places.h"

#include "core/mainView.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/values.h"

#include <cmath>

namespace {

constexpr int tries = 20;
constexpr int frameGap = 2;         // between a card and the outer edge of its frame, pixels
constexpr int firstHalf = 4;        // characters of a position that hold the left
constexpr double roomForMenu = 100; // pixels kept free at the top

void moveToRandomPlace(CardImage& card)
{
    card.left = (session.board.width - 2.5 * card.width) * desktop.random() + card.width / 2;
    card.top = (session.board.height - roomForMenu - 1.5 * card.height) * desktop.random() + roomForMenu;
}

} // namespace

void saveCardPosition(int card)
{
    const CardImage& at = session.box[card];
    session.cardValue[card][0] = positionText(at.left) + positionText(at.top);
}

void placeCard(int card)
{
    const QString position = session.cardValue[card][0];
    session.box[card].left = leadingNumber(position.left(firstHalf));
    session.box[card].top = leadingNumber(position.mid(firstHalf));
    mainView.redrawCard(card);
}

void placeCardAtRandom(int card)
{
    CardImage& image = session.box[card];
    moveToRandomPlace(image);
    for (int i = 0; i < tries; ++i) {
        if (cardOverlaps(card))
            moveToRandomPlace(image);
    }
    mainView.redrawCard(card);
}

bool cardOverlaps(int card)
{
    bool overlaps = false;
    ignoringErrors({[&] {
                       const CardImage& one = session.box[card];
                       for (int j = 1; j <= session.numCards; ++j) {
                           const CardImage& other = session.box[j];
                           overlaps |= j != card && other.visible &&
                                       std::abs(one.left - other.left) < one.width &&
                                       std::abs(one.top - other.top) < one.height;
                       }
                   }},
                   [&] { overlaps = false; });
    return overlaps;
}

void markCard(int card)
{
    const CardImage& marked = session.box[card];
    session.board.SelectBox = {marked.left - frameGap, marked.top - frameGap, marked.width + 2 * frameGap,
                               marked.height + 2 * frameGap, marked.visible};
    mainView.redrawCard(card);
}
