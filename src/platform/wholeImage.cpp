#include "platform/wholeImage.h"

#include "platform/errors.h"

#include <QImageReader>

namespace {

/// Adds missing palette entries, since a damaged file may refer to them, then converts the pixels to plain
/// colours.
void resolvePalette(QImage& picture)
{
    const bool clear = picture.hasAlphaChannel();
    const int told = picture.colorCount();
    if (told > 0) {
        picture.setColorCount(1 << picture.depth());
        for (int colour = told; colour < picture.colorCount(); ++colour)
            picture.setColor(colour, qRgb(0, 0, 0));
    }
    picture.convertTo(clear ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

} // namespace

QImage readWholeImage(QImageReader& reader)
{
    // The reader fills an image of the right format that is passed in. Pixels missing from a damaged file are
    // then white, not uninitialised memory.
    QImage picture;
    const QSize size = reader.scaledSize().isValid() ? reader.scaledSize() : reader.size();
    if (size.isValid() && reader.imageFormat() != QImage::Format_Invalid &&
        QImageIOHandler::allocateImage(size, reader.imageFormat(), &picture))
        picture.fill(Qt::white);
    if (!reader.read(&picture) || picture.isNull())
        throw RuntimeError(invalidPicture);
    resolvePalette(picture);
    picture.setDevicePixelRatio(1);
    return picture;
}
