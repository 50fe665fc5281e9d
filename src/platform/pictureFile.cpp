#include "platform/pictureFile.h"

#include "platform/bitmapFile.h"
#include "platform/errors.h"
#include "platform/metafile.h"
#include "platform/wholeFile.h"
#include "platform/wholeImage.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

#include <algorithm>

namespace {

constexpr qint64 largestToShrink = 2 * largestFile; // 100 megapixels without compression
constexpr QSize sizeOfDrawings(640, 480);           // which have no pixels of their own

/// Formats that are pictures and nothing else. An SVG file could read other files, or unpack without an end.
constexpr const char* allowedFormats[] = {"gif", "ico",  "jpeg", "pbm", "pgm", "png",
                                          "ppm", "tiff", "webp", "xbm", "xpm"};

bool isAllowed(const QByteArray& format)
{
    return std::any_of(std::begin(allowedFormats), std::end(allowedFormats),
                       [&format](const char* allowed) { return format == allowed; });
}

/// Has formats that can do so skip pixels that are not needed.
void shrinkTo(QImageReader& reader, QSize needed)
{
    if (needed.isEmpty() || !reader.supportsOption(QImageIOHandler::ScaledSize))
        return;
    if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        needed.transpose(); // it is turned after it has been read
    const QSize covering = reader.size().scaled(needed, Qt::KeepAspectRatioByExpanding);
    if (covering.width() < reader.size().width())
        reader.setScaledSize(covering.expandedTo({1, 1}));
}

QImage decodeOther(const QByteArray& bytes, QSize needed)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    if (!isAllowed(reader.format()))
        throw RuntimeError(invalidPicture);
    reader.setAutoTransform(true);
    shrinkTo(reader, needed);
    return readWholeImage(reader);
}

} // namespace

QImage readPicture(const QString& path, QSize needed)
{
    return decodePicture(readWholeFile(path, needed.isEmpty() ? largestFile : largestToShrink), needed);
}

QImage decodePicture(const QByteArray& bytes, QSize needed)
{
    if (isBitmap(bytes))
        return decodeBitmap(bytes, needed);
    if (beginsAsMetafile(bytes))
        return playMetafile(bytes, needed.isEmpty() ? sizeOfDrawings : needed);
    return decodeOther(bytes, needed);
}

QByteArray bitmapBytes(const QImage& picture)
{
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(opaque.rect(), picture);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!opaque.save(&buffer, "BMP"))
        throw RuntimeError(invalidPicture);
    return buffer.data();
}
