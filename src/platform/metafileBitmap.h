// Bitmaps as metafiles have them: without the header of a bitmap's own file.
#pragma once

#include <QByteArray>
#include <QImage>

/// The picture in a bare bitmap. Raises 481 as decodeBitmap() does.
QImage decodeBareBitmap(const QByteArray& bare);

/// How many pixels it says it has: a few bytes can ask for millions.
double bareBitmapPixels(const QByteArray& bare);
