// The child's hand on the board: what pressing, moving and letting go does to cards, bin and menu.
//
// Points are in board pixels; where a thing is held is noted in twips, as all mouse events tell it.
#pragma once

#include "board/soundLookup.h"

#include <QPointF>
#include <QString>

/// The topmost visible card at that point, 0 when there is none.
int cardAt(QPointF point);

// What a hand does in one go, for those who don't use a mouse.

/// Makes the card the selected one, raised and framed.
void selectCard(int card);
/// Turns the refresh off and opens the card in the editor.
void openInEditor(int card);
/// Carries the card to the middle of the bin and lets it go there.
void dropOnBin(int card);
/// Closes the bin, as its lid does.
void closeBin();

class Hand {
public:
    enum class Pointer { arrow, handOpen, handClosed, cardSound, bin };

    void press(QPointF point);
    /// `pressed`: any button is held. Passing over a card raises it, pressed or not.
    void moveTo(QPointF point, bool pressed);
    /// A button was let go; `stillPressed`: another one is held.
    void letGo(bool rightButton, bool stillPressed);
    /// A finger rests where it pressed: plays the card's sound, as letting go of the right button does.
    void rest();
    /// Opens the card there in the editor; false when there is none.
    bool openCardAt(QPointF point);
    /// The mouse has left the board.
    void leave();

    /// What the mouse pointer looks like at that point.
    Pointer pointerAt(QPointF point) const;
    /// Calls when the look of the pointer may have changed by itself.
    void whenPointerChanges(std::function<void()> changed);

private:
    enum class Part { board, card, bin, lid };
    struct Place {
        Part part = Part::board;
        int card = 0;
        QString id; // tells whether the number still means that card
    };

    static Place placeAt(QPointF point);
    void moveOverCard(int card, QPointF point);
    void moveOverBin(Part part, QPointF point);

    Place held;
    Place under; // the mouse
    bool holding = false;
    SoundLookup sounds;
};
