#include "board/boardKeys.h"

#include "board/hand.h"
#include "board/places.h"
#include "core/mainView.h"
#include "core/session.h"
#include "store/cardFiles.h"

#include <QAccessible>
#include <QPointF>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr double topOfBoard = 38; // below the menu band
constexpr double moveStep = 10;   // board pixels

QPointF centreOf(const CardImage& card) { return {card.left + card.width / 2, card.top + card.height / 2}; }

std::optional<QPointF> directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-1, 0);
    case Qt::Key_Right:
        return QPointF(1, 0);
    case Qt::Key_Up:
        return QPointF(0, -1);
    case Qt::Key_Down:
        return QPointF(0, 1);
    default:
        return {};
    }
}

/// How far it is to walk from one card to another; nothing when this lies in another direction. Of cards that
/// lie exactly on one another the next number is to the right and below.
std::optional<double> wayTo(int card, int from, QPointF direction)
{
    const QPointF way = centreOf(session.box[card]) - centreOf(session.box[from]);
    if (way.isNull())
        return (card > from) == (direction.x() + direction.y() > 0) ? std::abs(card - from) / 1e6
                                                                    : std::optional<double>();
    const double ahead = QPointF::dotProduct(way, direction);
    const double aside = std::abs(way.x() * direction.y()) + std::abs(way.y() * direction.x());
    return ahead > 0 && aside <= 3 * ahead ? ahead + 2 * aside : std::optional<double>();
}

/// The nearest card in that direction, the same one when there is none.
int cardBeside(int from, QPointF direction)
{
    int nearest = from;
    double shortest = HUGE_VAL;
    for (int card = 1; card <= session.numCards; ++card) {
        if (card == from || !session.box[card].visible)
            continue;
        const auto way = wayTo(card, from, direction);
        if (way && *way < shortest) {
            shortest = *way;
            nearest = card;
        }
    }
    return nearest;
}

/// Keeps the selected card inside the board, where the mouse can reach it.
void moveBy(int card, QPointF step)
{
    CardImage& image = session.box[card];
    image.left = std::clamp(image.left + step.x(), 0.0, std::max(0.0, session.board.width - image.width));
    image.top = std::clamp(image.top + step.y(), topOfBoard,
                           std::max(topOfBoard, session.board.height - image.height));
    saveCardPosition(card);
    markCard(card);
}

bool isMarked(int card)
{
    return card >= 1 && card <= session.numCards && session.box[card].visible &&
           session.board.SelectBox.visible;
}

void act(int key, int card)
{
    if (key == Qt::Key_Space)
        playCardSound(card);
    else if (key != Qt::Key_Delete)
        openInEditor(card);
    else if (session.board.BigBin.visible)
        dropOnBin(card);
}

} // namespace

bool boardHasKeys() { return QAccessible::isActive() || session.options.boardKeys == u"1"_s; }

void selectPresentCard()
{
    const int present = session.selectedCard;
    for (const int card : {present, 1}) {
        if (card >= 1 && card <= session.numCards && session.box[card].visible) {
            selectCard(card);
            return;
        }
    }
}

bool pressBoardKey(int key, bool shift)
{
    const auto direction = directionOf(key);
    const bool acts =
        key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space || key == Qt::Key_Delete;
    if (!direction && (!acts || shift))
        return false;
    const int card = session.selectedCard;
    if (!isMarked(card))
        selectPresentCard(); // a key acts only on the card that is marked
    else if (!direction)
        act(key, card);
    else if (shift)
        moveBy(card, *direction * moveStep);
    else
        selectCard(cardBeside(card, *direction));
    return true;
}
