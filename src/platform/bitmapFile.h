// Bitmap files (BMP): Qt's reader behind checks of our own.
#pragma once

#include <QByteArray>
#include <QImage>

inline bool isBitmap(const QByteArray& bytes) { return bytes.startsWith("BM"); }

/// The picture in the bytes of a bitmap file, in 32 bits. Raises 481 when they are no whole one.
QImage decodeBitmap(const QByteArray& bytes);
