// Picture files: decoding, with our own checks before the readers run, and writing the bitmaps of cards.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// The picture in a file, upright, as 32-bit pixels. The content decides the format, not the name. A photo or
/// a metafile is decoded with no more pixels than it takes to cover `needed` in its own proportions, and so
/// is a bitmap too large for memory; other formats, and all without `needed`, come whole. Raises 481 when it
/// isn't a complete picture, and what readWholeFile() raises.
QImage readPicture(const QString& path, QSize needed = {});

/// The picture in the bytes of a file. Raises 481 as readPicture() does.
QImage decodePicture(const QByteArray& bytes, QSize needed = {});

/// The picture as a bitmap file of 24 bits; what is transparent becomes white.
QByteArray bitmapBytes(const QImage& picture);
