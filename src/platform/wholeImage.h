// What all picture files have in common when Qt reads them.
#pragma once

#include <QImage>

class QImageReader;

/// The picture that the reader is about to read, in 32 bits, every pixel told by the file or white. Raises
/// 481 when there is none.
QImage readWholeImage(QImageReader& reader);
