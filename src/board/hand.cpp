#include "board/hand.h"

#include "board/boardPainter.h"
#include "board/places.h"
#include "core/mainView.h"
#include "core/menu.h"
#include "core/session.h"
#include "store/cardFiles.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QRectF lidOfBin(12 / 128.0, 0, 112 / 128.0, 56 / 150.0); // as fractions of the bin's picture

bool isOn(const BoardShape& shape, QPointF point)
{
    return shape.visible && wholePixels(shape).contains(point.toPoint());
}

bool isOnLid(QPointF point)
{
    const BoardShape& bin = session.board.BigBin;
    const BoardShape lid{bin.left + lidOfBin.left() * bin.width, bin.top + lidOfBin.top() * bin.height,
                         lidOfBin.width() * bin.width, lidOfBin.height() * bin.height, bin.visible};
    return isOn(lid, point);
}

/// Stores where the mouse holds the object, in twips.
template <class Thing>
void noteGrip(const Thing& thing, QPointF point)
{
    session.board.dragOffsetX = (point.x() - thing.left) * session.twipsPerPixelX;
    session.board.dragOffsetY = (point.y() - thing.top) * session.twipsPerPixelY;
}

/// Moves the object with the mouse, which is at `point`.
template <class Thing>
void dragTo(Thing& thing, QPointF point)
{
    thing.left = point.x() - session.board.dragOffsetX / session.twipsPerPixelX;
    thing.top = point.y() - session.board.dragOffsetY / session.twipsPerPixelY;
}

/// The card was let go and stays where it is.
void letGoOfCard(int card)
{
    session.box[card].cursor = CardCursor::handOpen;
    saveCardPosition(card);
    mainView.cardDropped(card); // may ask, delete the card and renumber the others
    markCard(session.selectedCard);
}

void raise(int card)
{
    if (session.cardStack.fromBelow().back() == card)
        return;
    session.cardStack.bringToFront(card);
    mainView.redrawCard(card);
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
    mainView.setRefresh(u"Off"_s);
    mainView.openCard(card);
}

void dropOnBin(int card)
{
    CardImage& image = session.box[card];
    const Bin& bin = session.board.BigBin;
    image.left = bin.left + (bin.width - image.width) / 2;
    image.top = bin.top + (bin.height - image.height) / 2;
    mainView.redrawCard(card);
    letGoOfCard(card);
}

void closeBin()
{
    session.board.BigBin.lidPressed = false;
    session.board.BigBin.visible = false;
    mainView.hideHints();
    mainView.redrawBoard();
}

Hand::Place Hand::placeAt(QPointF point)
{
    if (const int card = cardAt(point))
        return {Part::card, card, session.cardId[card]};
    if (isOnLid(point))
        return {Part::lid, 0, {}};
    if (isOn(session.board.BigBin, point))
        return {Part::bin, 0, {}};
    return {};
}

void Hand::press(QPointF point)
{
    if (!holding) // a second button keeps hold of the same object
        held = placeAt(point);
    holding = true;
    if (held.part == Part::card) {
        session.box[held.card].cursor = CardCursor::handClosed;
        noteGrip(session.box[held.card], point);
        session.selectedCard = qint16(held.card);
        markCard(held.card);
    } else if (held.part == Part::bin) {
        noteGrip(session.board.BigBin, point);
    } else if (held.part == Part::lid) {
        session.board.BigBin.lidPressed = true;
        mainView.redrawBoard();
    }
}

void Hand::moveTo(QPointF point, bool pressed)
{
    // A reload may have given the held card's number to another card, and the release may have gone to
    // another window.
    const bool lost = held.part == Part::card && session.cardId[held.card] != held.id;
    holding = holding && pressed && !lost;
    under = holding ? held : placeAt(point);
    if (under.part != Part::card)
        sounds.endPass();
    if (under.part == Part::card || under.part == Part::board)
        mainView.hideHints();

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
        mainView.redrawCard(card);
        markCard(session.selectedCard);
    }
}

void Hand::moveOverBin(Part part, QPointF point)
{
    if (holding && part == Part::bin) {
        dragTo(session.board.BigBin, point);
        mainView.redrawBoard();
    }
    mainView.showHint(u"Click and drag the bin anywhere on the screen , Click on the lid to close it"_s);
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
    holding = false; // the editor gets the release
    openInEditor(card);
    return true;
}

void Hand::leave()
{
    under = {};
    sounds.endPass();
    mainView.hideHints();
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
