// Card faces: the small picture of a card on the board and in the table.
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

struct FaceLook {
    QSize size;         // in board pixels
    double pixelRatio;  // device pixels per board pixel: 2 on a screen of double density, more on paper
    bool strip;         // the label alone, on white, in place of the picture
    QColor labelColour; // on a picture; a strip has a black label
    bool operator==(const FaceLook&) const = default;
};

/// The face with that picture, stretched to its size, and that label in its upper left corner. A strip shows
/// no picture.
QImage cardFace(const QImage& picture, const QString& label, const FaceLook& look);

/// The look that the session gives to a face drawn now, at the measures of `shrinkdummy`.
FaceLook boardFaceLook();

/// Draws the card's face from `Picture1` and the card's label on `shrinkdummy`. The card takes its face,
/// measures and tooltip from there.
void drawCardFace(int card);

/// Gives every card the measures of session.cardSize and draws all faces again from their picture files. A
/// size other than 0, 1 and 2 leaves the measures as they are.
void resizeAllCards();
