// The one way that Qt's readers decode a picture file.
#pragma once

#include <QImage>

class QImageReader;

/// Decodes the reader's picture to 32 bits; pixels that the file doesn't define are white. Raises 481 when it
/// can't be decoded.
QImage readWholeImage(QImageReader& reader);
