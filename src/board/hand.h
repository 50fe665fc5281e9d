// Mouse and touch on the board: what press, move and release do to cards, bin and menu.
//
// Points are in board pixels; the grip on a dragged object is stored in twips.
#pragma once

#include "board/soundLookup.h"

#include <QPointF>
#include <QString>

/// The topmost visible card at that point, 0 when there is none.
int cardAt(QPointF point);

// Whole actions, for use without a mouse.

/// Selects the card, raises and frames it.
void selectCard(int card);
/// Turns the refresh off and opens the card in the editor.
void openInEditor(int card);
/// Moves the card to the middle of the bin and drops it there.
void dropOnBin(int card);
/// Closes the bin, like a click on its lid.
void closeBin();

class Hand {
public:
    enum class Pointer { arrow, handOpen, handClosed, cardSound, bin };

    void press(QPointF point);
    /// `pressed`: a button is held. A card under the mouse is raised, pressed or not.
    void moveTo(QPointF point, bool pressed);
    /// A button was released; `stillPressed`: another one is held.
    void letGo(bool rightButton, bool stillPressed);
    /// A long press: plays the card's sound, like a click of the right button.
    void rest();
    /// Opens the card at that point in the editor; false when there is none.
    bool openCardAt(QPointF point);
    /// The mouse has left the board.
    void leave();

    /// The shape of the mouse pointer at that point.
    Pointer pointerAt(QPointF point) const;
    /// Sets the function to call when the pointer's shape may change although the mouse doesn't move.
    void whenPointerChanges(std::function<void()> changed);

private:
    enum class Part { board, card, bin, lid };
    struct Place {
        Part part = Part::board;
        int card = 0;
        QString id; // to check whether the number still belongs to that card
    };

    static Place placeAt(QPointF point);
    void moveOverCard(int card, QPointF point);
    void moveOverBin(Part part, QPointF point);

    Place held;
    Place under; // the mouse
    bool holding = false;
    SoundLookup sounds;
};
