#include "platform/metafileArc.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr qsizetype recordBytes = 22; // length, function, eight words
constexpr qsizetype headerBytes = 6;
constexpr quint16 functions[] = {0x0817, 0x0830, 0x081A}; // arc, chord, pie

/// What the record tells, word by word.
enum Word { lastY, lastX, firstY, firstX, bottom, right, top, left };

template <class T>
T valueAt(const QByteArray& file, qsizetype offset)
{
    return qFromLittleEndian<T>(file.constData() + offset);
}

} // namespace

std::optional<ArcEnds> arcEndsOf(const QByteArray& file, qsizetype recordEnd, QPointF corner,
                                 QPointF opposite)
{
    const qsizetype start = recordEnd - recordBytes;
    if (start < 0 || recordEnd > file.size() || valueAt<quint32>(file, start) * 2 != recordBytes ||
        std::count(std::begin(functions), std::end(functions), valueAt<quint16>(file, start + 4)) == 0)
        return std::nullopt;
    const auto word = [&](Word number) {
        return double(valueAt<qint16>(file, start + headerBytes + 2 * number));
    };
    const double width = word(right) - word(left);
    const double height = word(bottom) - word(top);
    if (width == 0 || height == 0)
        return std::nullopt;
    const auto onSheet = [&](Word x, Word y) {
        const QPointF way = opposite - corner;
        return corner +
               QPointF((word(x) - word(left)) / width * way.x(), (word(y) - word(top)) / height * way.y());
    };
    return ArcEnds{onSheet(firstX, firstY), onSheet(lastX, lastY)};
}
