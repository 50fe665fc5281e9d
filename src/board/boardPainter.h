// The look of the board: paints what lies on it, from the session's plain data, on any surface.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QRect>

class QPainter;
struct BoardShape;
struct CardImage;

/// What the board's own parts look like; the style sheet decides.
struct BoardLook {
    QFont captionFont;
    QColor ink;
    QColor paper;
    QColor leftTint; // of the circles of a find
    QColor rightTint;
    QIcon binUp;
    QIcon binDown;
};

/// Places may be fractions while a card flies; what is painted and told outside are whole pixels.
QRect wholePixels(const CardImage& card);
QRect wholePixels(const BoardShape& shape);

/// Paints the part of the board within `damage`, the lowest first: background, circles, bin, captions, the
/// cards as they are stacked, the frame of the selected card.
void paintBoard(QPainter& painter, const QRect& damage, const BoardLook& look);
