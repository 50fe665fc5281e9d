#include "platform/bitmapFile.h"

#include "platform/errors.h"
#include "platform/stretching.h"
#include "platform/wholeImage.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace {

enum Compression : quint32 { uncompressed = 0, runLength8 = 1, runLength4 = 2, bitFields = 3 };

constexpr int fileHeaderSize = 14;
constexpr quint32 oldHeaderSize = 12; // sizes have 16 bits, palette entries three bytes
constexpr quint32 plainHeaderSize = 40;

/// The header fields that determine how long a bitmap file must be.
struct BitmapMeasures {
    qint64 pixelsFrom = 0;
    qint64 width = 0;
    qint64 height = 0; // negative when the top row comes first
    int bits = 0;
    quint32 compression = uncompressed;

    qint64 rowBytes() const { return (width * bits + 31) / 32 * 4; }
    bool hasRunLengths() const { return compression == runLength8 || compression == runLength4; }
};

template <class T>
T valueAt(const QByteArray& bytes, qsizetype offset)
{
    if (offset + qsizetype(sizeof(T)) > bytes.size())
        throw RuntimeError(invalidPicture);
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

BitmapMeasures measuresOf(const QByteArray& file)
{
    BitmapMeasures found;
    const auto headerSize = valueAt<quint32>(file, fileHeaderSize);
    const bool old = headerSize == oldHeaderSize;
    if (!old && headerSize < plainHeaderSize)
        throw RuntimeError(invalidPicture);

    quint32 colours = 0;
    if (old) {
        found.width = valueAt<quint16>(file, 18);
        found.height = valueAt<quint16>(file, 20);
        found.bits = valueAt<quint16>(file, 24);
    } else {
        found.width = valueAt<qint32>(file, 18);
        found.height = valueAt<qint32>(file, 22);
        found.bits = valueAt<quint16>(file, 28);
        found.compression = valueAt<quint32>(file, 30);
        colours = valueAt<quint32>(file, 46);
    }
    if (colours == 0 && found.bits <= 8)
        colours = 1u << found.bits;
    if (found.bits > 8)
        colours = 0; // here a palette is only a hint
    const int masks = headerSize == plainHeaderSize && found.compression == bitFields ? 12 : 0;
    const qint64 headersEnd = fileHeaderSize + qint64(headerSize) + masks + qint64(colours) * (old ? 3 : 4);
    found.pixelsFrom = std::max<qint64>(valueAt<quint32>(file, 10), headersEnd);
    return found;
}

/// Rejects a bitmap that is shorter than its headers say: Qt's reader leaves missing rows uninitialised.
void checkBitmap(const QByteArray& file)
{
    const BitmapMeasures bitmap = measuresOf(file);
    const qint64 rows = std::abs(bitmap.height);
    const qint64 longest = file.size();
    if (bitmap.width <= 0 || rows == 0 || bitmap.width > longest * 255 || rows > longest * 255)
        throw RuntimeError(invalidPicture);
    const qint64 pixels = bitmap.hasRunLengths() ? 1 : bitmap.rowBytes() * rows;
    if (bitmap.pixelsFrom + pixels > file.size())
        throw RuntimeError(invalidPicture);
}

/// Makes a 32-bit picture opaque when every alpha byte is 0: its writer left the byte unused. Expects the
/// result of readWholeImage().
void showWhenAllTransparent(QImage& picture)
{
    if (!picture.hasAlphaChannel())
        return;
    const auto pixels = [&picture](int y) { return reinterpret_cast<QRgb*>(picture.scanLine(y)); };
    for (int y = 0; y < picture.height(); ++y) {
        if (std::any_of(pixels(y), pixels(y) + picture.width(),
                        [](QRgb pixel) { return qAlpha(pixel) != 0; }))
            return;
    }
    for (int y = 0; y < picture.height(); ++y)
        std::for_each(pixels(y), pixels(y) + picture.width(), [](QRgb& pixel) { pixel |= 0xFF000000; });
    picture.reinterpretAsFormat(QImage::Format_RGB32);
}

QImage decodeWhole(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "bmp");
    QImage picture = readWholeImage(reader);
    showWhenAllTransparent(picture);
    return picture;
}

template <class T>
void putAt(QByteArray& bytes, qsizetype offset, T value)
{
    qToLittleEndian(value, bytes.data() + offset);
}

/// By how much a bitmap must be thinned out to be decoded; 1 for one that can be as it is, or not at all.
int thinningOf(const QByteArray& file, const BitmapMeasures& bitmap)
{
    const bool old = valueAt<quint32>(file, fileHeaderSize) == oldHeaderSize;
    if (old || bitmap.bits < 16 || bitmap.hasRunLengths())
        return 1;
    const double limit = QImageReader::allocationLimit() * 1024.0 * 1024.0;
    const double needed = 4.0 * double(bitmap.width) * double(std::abs(bitmap.height));
    return limit > 0 ? int(std::ceil(std::sqrt(std::max(1.0, needed / limit)))) : 1;
}

/// The bitmap file with each `step`th pixel of each `step`th row.
QByteArray thinnedOut(const QByteArray& file, const BitmapMeasures& bitmap, int step)
{
    BitmapMeasures thin = bitmap;
    thin.width = bitmap.width / step;
    thin.height = bitmap.height / step;
    const qsizetype pixelBytes = bitmap.bits / 8;
    const qint64 rows = std::abs(thin.height);
    QByteArray bytes(thin.pixelsFrom + thin.rowBytes() * rows, '\0');
    std::copy_n(file.cbegin(), bitmap.pixelsFrom, bytes.begin());
    putAt(bytes, 18, qint32(thin.width));
    putAt(bytes, 22, qint32(thin.height));
    putAt(bytes, 34, quint32(thin.rowBytes() * rows));
    for (qint64 y = 0; y < rows; ++y) {
        const char* from = file.constData() + bitmap.pixelsFrom + y * step * bitmap.rowBytes();
        char* to = bytes.data() + thin.pixelsFrom + y * thin.rowBytes();
        for (qint64 x = 0; x < thin.width; ++x)
            std::copy_n(from + x * step * pixelBytes, pixelBytes, to + x * pixelBytes);
    }
    return bytes;
}

} // namespace

QImage decodeBitmap(const QByteArray& bytes, QSize needed)
{
    checkBitmap(bytes);
    const BitmapMeasures bitmap = measuresOf(bytes);
    const int step = needed.isEmpty() ? 1 : thinningOf(bytes, bitmap);
    if (step == 1)
        return decodeWhole(bytes);
    const QImage thin = decodeWhole(thinnedOut(bytes, bitmap, step));
    const QSize covering = thin.size().scaled(needed, Qt::KeepAspectRatioByExpanding);
    return covering.width() < thin.width() ? stretched(thin, covering) : thin;
}
