// Archives for tests: stored RAR files, also with headers that lie.
#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

struct Packed {
    QByteArray name;
    QByteArray bytes = {};
    quint32 mode = 0100644;
    qint64 claimedSize = -1; // in the header, when it is not the size of the bytes
};

namespace rar {

inline quint32 checksum(const QByteArray& bytes)
{
    quint32 sum = ~0u;
    for (const char byte : bytes) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320u : 0);
    }
    return ~sum;
}

template <class... Numbers>
QByteArray fields(Numbers... numbers)
{
    QByteArray bytes;
    const auto append = [&bytes](auto number) {
        number = qToLittleEndian(number);
        bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
    };
    (append(numbers), ...);
    return bytes;
}

inline QByteArray block(quint8 type, quint16 flags, const QByteArray& rest)
{
    const QByteArray head = fields(type, flags, quint16(7 + rest.size())) + rest;
    return fields(quint16(checksum(head))) + head;
}

} // namespace rar

inline QByteArray rarOf(const QList<Packed>& files)
{
    QByteArray archive = QByteArray::fromHex("526172211a0700") + rar::block(0x73, 0, QByteArray(6, 0));
    for (const Packed& file : files) {
        const auto size = quint32(file.bytes.size());
        archive += rar::block(0x74, 0x8000,
                              rar::fields(size, file.claimedSize < 0 ? size : quint32(file.claimedSize),
                                          quint8(3), rar::checksum(file.bytes), quint32(0x2a216000),
                                          quint8(20), quint8(0x30), quint16(file.name.size()), file.mode) +
                                  file.name) +
                   file.bytes;
    }
    return archive + QByteArray::fromHex("c43d7b00400700");
}
