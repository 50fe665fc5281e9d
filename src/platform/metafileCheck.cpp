#include "platform/metafileCheck.h"

#include <QtEndian>

namespace {

constexpr qsizetype placeableSize = 22;
constexpr qsizetype headerSize = 18;
constexpr qsizetype recordHeader = 6;
constexpr quint16 headerWords = 9;
constexpr quint16 newestType = 2; // 1 in memory, 2 on a disk

template <class T>
T valueAt(const QByteArray& file, qsizetype offset)
{
    return qFromLittleEndian<T>(file.constData() + offset);
}

/// Checks the header with the frame: its units to the inch must not be 0 nor its frame empty.
bool placeMakesSense(const QByteArray& file)
{
    const auto word = [&file](qsizetype offset) { return valueAt<quint16>(file, offset); };
    return file.size() >= placeableSize + headerSize && word(14) != 0 && word(6) != word(10) &&
           word(8) != word(12);
}

bool recordsEnd(const QByteArray& file, qsizetype from)
{
    while (from + recordHeader <= file.size()) {
        const qsizetype bytes = qsizetype(valueAt<quint32>(file, from)) * 2;
        if (bytes < recordHeader || from + bytes > file.size())
            return false;
        if (valueAt<quint16>(file, from + 4) == 0)
            return true;
        from += bytes;
    }
    return false;
}

} // namespace

bool isWholeMetafile(const QByteArray& file)
{
    if (file.size() < headerSize)
        return false;
    qsizetype start = 0;
    if (valueAt<quint32>(file, 0) == placeableKey) {
        if (!placeMakesSense(file))
            return false;
        start = placeableSize;
    }
    return valueAt<quint16>(file, start) <= newestType && valueAt<quint16>(file, start + 2) == headerWords &&
           recordsEnd(file, start + headerSize);
}
