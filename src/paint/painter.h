// What a hand does to a painting: the mouse at its tool, pictures brought in, and the way from the card and
// back.
#pragma once

#include "paint/painting.h"

/// Begins with the card's picture, pixels doubled; the first colour and the first tool are chosen.
void openPainting(Painting& painting, const QImage& cardPicture);
/// What was painted, at the card's size. What was not touched has its very pixels back.
QImage paintedCard(const Painting& painting, QSize cardSize);
/// What a window does after the painting was taken over: canvas and undo are blank.
void clearPainting(Painting& painting);

void mouseDown(Painting& painting, const MouseAt& mouse);
void mouseMove(Painting& painting, const MouseAt& mouse);
void mouseUp(Painting& painting, const MouseAt& mouse);

/// Paints the picture over the whole canvas; the last one once more when `picture` is null.
void importPicture(Painting& painting, const QImage& picture);
/// The same on a blank canvas.
void dropPicture(Painting& painting, const QImage& picture);
