#include "board/hand.h"

#include "board/boardPainter.h"
#include "board/places.h"
#include "core/menu.h"
#include "core/screen.h"
#include "core/session.h"
#include "store/cardFiles.h"

#include <algorithm>

namespace {

constexpr QRectF lidOfBin(12 / 128.0, 0, 112 / 128.0, 56 / 150.0); // as parts of the bin's picture

bool isOn(const BoardShape& shape, QPointF point)
{
    return shape.visible && wholePixels(shape).contains(point.toPoint());
}

bool isOnLid(QPointF point)
{
    const BoardShape& bin = session.BigBin;
    const BoardShape lid{bin.left + lidOfBin.left() * bin.width, bin.top + lidOfBin.top() * bin.height,
                         lidOfBin.width() * bin.width, lidOfBin.height() * bin.height, bin.visible};
    return isOn(lid, point);
}

/// Notes in twips where the mouse holds the thing.
template <class Thing>
void noteGrip(const Thing& thing, QPointF point)
{
    session.dragOffsetX = (point.x() - thing.left) * session.twipsPerPixelX;
    session.dragOffsetY = (point.y() - thing.top) * session.twipsPerPixelY;
}

/// Moves the thing so that the mouse, at `point`, holds it where it took it.
template <class Thing>
void dragTo(Thing& thing, QPointF point)
{
    thing.left = point.x() - session.dragOffsetX / session.twipsPerPixelX;
    thing.top = point.y() - session.dragOffsetY / session.twipsPerPixelY;
}

/// The card lies where it is to stay.
void letGoOfCard(int card)
{
    session.box[card].cursor = CardCursor::handOpen;
    saveCardPosition(card);
    screen.cardDropped(card); // may ask, delete the card and number the others anew
    markCard(session.selectedCard);
}

void raise(int card)
{
    if (session.cardStack.fromBelow().back() == card)
        return;
    session.cardStack.bringToFront(card);
    screen.redrawCard(card);
}

} // namespace

int cardAt(QPointF point)
{
    const auto& order = session.cardStack.fromBelow();
    const auto topmost = std::find_if(order.rbegin(), order.rend(), [point](int i) {
        const CardImage& card = session.box[i];
        return i != 0 && card.visible && wholePixels(card).contains(point.toPoint());
    });
    return topmost == order.rend() ? 0 : *topmost;
}

void selectCard(int card)
{
    session.selectedCard = qint16(card);
    raise(card);
    markCard(card);
}

void openInEditor(int card)
{
    screen.setRefresh(QStringLiteral("Off"));
    screen.openCard(card);
}

void dropOnBin(int card)
{
    CardImage& image = session.box[card];
    const Bin& bin = session.BigBin;
    image.left = bin.left + (bin.width - image.width) / 2;
    image.top = bin.top + (bin.height - image.height) / 2;
    screen.redrawCard(card);
    letGoOfCard(card);
}

void closeBin()
{
    session.BigBin.lidPressed = false;
    session.BigBin.visible = false;
    screen.hideHints();
    screen.redrawBoard();
}

Hand::Place Hand::placeAt(QPointF point)
{
    if (const int card = cardAt(point))
        return {Part::card, card, session.cardId[card]};
    if (isOnLid(point))
        return {Part::lid, 0, {}};
    if (isOn(session.BigBin, point))
        return {Part::bin, 0, {}};
    return {};
}

void Hand::press(QPointF point)
{
    if (!holding) // a second button takes hold of the same thing
        held = placeAt(point);
    holding = true;
    if (held.part == Part::card) {
        session.box[held.card].cursor = CardCursor::handClosed;
        noteGrip(session.box[held.card], point);
        session.selectedCard = qint16(held.card);
        markCard(held.card);
    } else if (held.part == Part::bin) {
        noteGrip(session.BigBin, point);
    } else if (held.part == Part::lid) {
        session.BigBin.lidPressed = true;
        screen.redrawBoard();
    }
}

void Hand::moveTo(QPointF point, bool pressed)
{
    // A reload may have given the held card's number to another card, and a release may go to another window.
    const bool lost = held.part == Part::card && session.cardId[held.card] != held.id;
    holding = holding && pressed && !lost;
    under = holding ? held : placeAt(point);
    if (under.part != Part::card)
        sounds.endPass();
    if (under.part == Part::card || under.part == Part::board)
        screen.hideHints();

    if (under.part == Part::card)
        moveOverCard(under.card, point);
    else if (under.part != Part::board)
        moveOverBin(under.part, point);
}

void Hand::moveOverCard(int card, QPointF point)
{
    if (sounds.hasSound(card))
        session.box[card].cursor = CardCursor::cardSound;
    raise(card);
    if (holding) {
        dragTo(session.box[card], point);
        screen.redrawCard(card);
        markCard(session.selectedCard);
    }
}

void Hand::moveOverBin(Part part, QPointF point)
{
    if (holding && part == Part::bin) {
        dragTo(session.BigBin, point);
        screen.redrawBoard();
    }
    screen.showHint(
        QStringLiteral("Click and drag the bin anywhere on the screen , Click on the lid to close it"));
}

void Hand::letGo(bool rightButton, bool stillPressed)
{
    if (!holding)
        return;
    holding = stillPressed;
    if (held.part == Part::card) {
        letGoOfCard(held.card);
        if (rightButton)
            playCardSound(session.selectedCard);
    } else if (held.part == Part::lid) {
        closeBin();
    } else if (held.part == Part::board) {
        closeMenu();
    }
}

void Hand::rest()
{
    if (holding && held.part == Part::card)
        playCardSound(held.card);
}

bool Hand::openCardAt(QPointF point)
{
    const int card = cardAt(point);
    if (card == 0)
        return false;
    holding = false; // the editor takes the mouse from here
    openInEditor(card);
    return true;
}

void Hand::leave()
{
    under = {};
    sounds.endPass();
    screen.hideHints();
}

Hand::Pointer Hand::pointerAt(QPointF point) const
{
    const Place place = holding ? held : placeAt(point);
    if (place.part == Part::board)
        return Pointer::arrow;
    if (place.part != Part::card)
        return Pointer::bin;
    switch (session.box[place.card].cursor) {
    case CardCursor::handClosed:
        return Pointer::handClosed;
    case CardCursor::cardSound:
        return Pointer::cardSound;
    default:
        return Pointer::handOpen;
    }
}

void Hand::whenPointerChanges(std::function<void()> changed)
{
    sounds.answered = [this, changed] {
        if (under.part == Part::card && sounds.hasSound(under.card))
            session.box[under.card].cursor = CardCursor::cardSound;
        changed();
    };
}
