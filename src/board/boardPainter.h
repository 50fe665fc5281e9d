// Paints the board from the session's data, on any paint device.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QRect>

class QPainter;
struct BoardShape;
struct CardImage;

/// The look of the board's own parts, set by the style sheet.
struct BoardLook {
    QFont captionFont;
    QColor ink;
    QColor paper;
    QColor leftTint; // of the circles of a find
    QColor rightTint;
    QIcon binUp;
    QIcon binDown;
};

/// Positions may be fractions while a card flies; painting and accessibility use whole pixels.
QRect wholePixels(const CardImage& card);
QRect wholePixels(const BoardShape& shape);

/// The board pixels that the card or shape touches on a screen of that pixel ratio.
QRect paintedRect(const CardImage& card, double ratio);
QRect paintedRect(const BoardShape& shape, double ratio);

/// Paints the part of the board within `damage`, from the lowest layer up: background, circles, bin,
/// captions, cards in stacking order, the frame of the selected card.
void paintBoard(QPainter& painter, const QRect& damage, const BoardLook& look);
