// Bitmap files (BMP): Qt's reader behind checks of our own.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

inline bool isBitmap(const QByteArray& bytes) { return bytes.startsWith("BM"); }

/// The picture in the bytes of a bitmap file, in 32 bits. One too large for memory is read with fewer pixels
/// where `needed` is given: just enough to cover that size. Raises 481 when they are no whole one.
QImage decodeBitmap(const QByteArray& bytes, QSize needed = {});
