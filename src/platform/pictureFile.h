// Picture files: decoding with our own checks before Qt's readers, and the bitmaps that cards keep.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// The picture in a file of any format that Qt reads, told by its content, in 32 bits. Raises 481 when it
/// isn't a whole picture, otherwise as readWholeFile().
QImage readPicture(const QString& path);

/// The picture in the bytes of a file. Raises 481 as readPicture() does.
QImage decodePicture(const QByteArray& bytes);

/// The picture as a bitmap file of 24 bits; what is transparent becomes white.
QByteArray bitmapBytes(const QImage& picture);
