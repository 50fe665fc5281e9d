// The paint pot.
#pragma once

#include <QImage>

/// Gives the colour to every pixel of exactly the colour at `from` that is connected to it through its sides.
/// Nothing outside the picture. The picture has 32 bits.
void floodFill(QImage& image, QPoint from, QRgb colour);
