#include "platform/metafileBitmap.h"

#include "platform/bitmapFile.h"

#include <QtEndian>

#include <cmath>

namespace {

constexpr quint32 oldHeader = 12; // its sizes have 16 bits
constexpr quint32 plainHeader = 40;

template <class T>
T valueAt(const QByteArray& bare, qsizetype offset)
{
    return qFromLittleEndian<T>(bare.constData() + offset);
}

/// The size of its header, 0 when that makes no sense.
quint32 headerOf(const QByteArray& bare)
{
    constexpr quint32 longestHeader = 124;
    if (bare.size() < qsizetype(oldHeader))
        return 0;
    const auto header = valueAt<quint32>(bare, 0);
    const bool sensible = header == oldHeader || (header >= plainHeader && header <= longestHeader);
    return sensible && qsizetype(header) <= bare.size() ? header : 0;
}

/// Where the pixels begin, 0 when the header makes no sense.
quint32 pixelsFrom(const QByteArray& bare)
{
    constexpr quint32 bitFields = 3;
    const quint32 header = headerOf(bare);
    if (header < plainHeader)
        return header;
    const auto bits = valueAt<quint16>(bare, 14);
    const auto compression = valueAt<quint32>(bare, 16);
    const auto told = valueAt<quint32>(bare, 32);
    if (bits > 8)
        return header + (compression == bitFields && header == plainHeader ? 12 : 0);
    return header + 4 * (told > 0 && told <= (1u << bits) ? told : 1u << bits);
}

QByteArray fileHeader(quint32 size, quint32 pixels)
{
    QByteArray header("BM");
    for (const quint32 value : {size, 0u, pixels}) {
        const quint32 little = qToLittleEndian(value);
        header.append(reinterpret_cast<const char*>(&little), sizeof little);
    }
    return header;
}

} // namespace

QImage decodeBareBitmap(const QByteArray& bare)
{
    constexpr quint32 headerSize = 14;
    return decodeBitmap(fileHeader(headerSize + quint32(bare.size()), headerSize + pixelsFrom(bare)) + bare);
}

double bareBitmapPixels(const QByteArray& bare)
{
    const quint32 header = headerOf(bare);
    if (header == 0)
        return 0;
    if (header == oldHeader)
        return double(valueAt<quint16>(bare, 4)) * valueAt<quint16>(bare, 6);
    return std::abs(double(valueAt<qint32>(bare, 4)) * valueAt<qint32>(bare, 8));
}
