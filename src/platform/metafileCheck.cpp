#include "platform/metafileCheck.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr qsizetype placeableSize = 22;
constexpr qsizetype headerSize = 18;
constexpr qsizetype toldLongest = 12; // where the header tells the words of the longest record
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

/// The length of the longest record in bytes, 0 when the records don't end.
qsizetype longestRecord(const QByteArray& file, qsizetype from)
{
    qsizetype longest = 0;
    while (from + recordHeader <= file.size()) {
        const qsizetype bytes = qsizetype(valueAt<quint32>(file, from)) * 2;
        if (bytes < recordHeader || from + bytes > file.size())
            return 0;
        longest = std::max(longest, bytes);
        if (valueAt<quint16>(file, from + 4) == 0)
            return longest;
        from += bytes;
    }
    return 0;
}

} // namespace

QByteArray checkedMetafile(const QByteArray& file)
{
    if (file.size() < headerSize)
        return {};
    qsizetype start = 0;
    if (valueAt<quint32>(file, 0) == placeableKey) {
        if (!placeMakesSense(file))
            return {};
        start = placeableSize;
    }
    const qsizetype longest = longestRecord(file, start + headerSize);
    if (valueAt<quint16>(file, start) > newestType || valueAt<quint16>(file, start + 2) != headerWords ||
        longest == 0)
        return {};
    QByteArray checked = file;
    qToLittleEndian(quint32(longest / 2), checked.data() + start + toldLongest);
    return checked;
}
