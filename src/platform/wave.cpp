#include "platform/wave.h"

#include "platform/errors.h"

#include <QBuffer>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int headSize = 12;   // "RIFF", size, "WAVE"
constexpr int chunkHead = 8;   // name, size
constexpr int formatSize = 16; // of the basic format chunk
constexpr int subformatAt = 24;
constexpr quint16 pcm = 1;
constexpr quint16 extensible = 0xFFFE;
// The subformat that means PCM in an extensible format.
constexpr char pcmSubformat[] = "\x01\x00\x00\x00\x00\x00\x10\x00\x80\x00\x00\xaa\x00\x38\x9b\x71";
constexpr int subformatSize = 16;
constexpr int mostChannels = 8;
constexpr quint32 lowestRate = 1'000; // Qt 6.4 divides by zero at the lowest ones
constexpr quint32 highestRate = 384'000;
constexpr int mostChunks = 1000; // a large file of tiny ones would hold the program
constexpr qint64 longestFormat = 64;

[[noreturn]] void refuse() { throw RuntimeError(deviceError); }

template <class Number>
Number numberAt(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

template <class Number>
void append(QByteArray& bytes, Number value)
{
    char raw[sizeof(Number)];
    qToLittleEndian(value, raw);
    bytes.append(raw, sizeof raw);
}

QByteArray bytesAt(QIODevice& file, qint64 at, qint64 length)
{
    const bool within = length > 0 && at <= file.size();
    return within && file.seek(at) ? file.read(length) : QByteArray();
}

struct Chunk {
    qint64 begin = 0; // of its content
    qint64 length = -1;
};

/// The start of the chunk that follows the one ending at `end`. Chunks start at even offsets, but some
/// programs omit the padding byte.
qint64 nextChunk(QIODevice& file, qint64 end)
{
    if (end % 2 == 0)
        return end;
    const QByteArray unpadded = bytesAt(file, end, 4);
    return unpadded == "data" || unpadded == "fmt " ? end : end + 1;
}

/// The first chunk of that name, truncated at the end of the file; of length -1 when there is none.
Chunk findChunk(QIODevice& file, const char* name)
{
    qint64 at = headSize;
    for (int number = 0; number < mostChunks; ++number) {
        const QByteArray head = bytesAt(file, at, chunkHead);
        if (head.size() < chunkHead)
            return {};
        const qint64 begin = at + chunkHead;
        const qint64 end = std::min(begin + qint64(numberAt<quint32>(head, 4)), file.size());
        if (head.startsWith(name))
            return {begin, end - begin};
        at = nextChunk(file, end);
    }
    return {};
}

bool isPcm(const QByteArray& format)
{
    const auto kind = numberAt<quint16>(format, 0);
    if (kind == extensible)
        return format.mid(subformatAt, subformatSize) == QByteArray(pcmSubformat, subformatSize);
    return kind == pcm;
}

} // namespace

WaveFile inspectWave(QIODevice& file)
{
    const QByteArray head = bytesAt(file, 0, headSize);
    if (!head.startsWith("RIFF") || head.mid(8) != "WAVE")
        refuse();
    const Chunk formatChunk = findChunk(file, "fmt ");
    const Chunk data = findChunk(file, "data");
    const QByteArray format = bytesAt(file, formatChunk.begin, std::min(formatChunk.length, longestFormat));
    if (format.size() < formatSize || data.length < 0 || !isPcm(format))
        refuse();

    const auto channels = numberAt<quint16>(format, 2);
    const auto rate = numberAt<quint32>(format, 4);
    const auto bits = numberAt<quint16>(format, 14);
    if (channels < 1 || channels > mostChannels || rate < lowestRate || rate > highestRate ||
        (bits != 8 && bits != 16))
        refuse();

    const Wave wave{int(rate), channels, bits, {}};
    return {wave, data.begin, data.length - data.length % wave.frameSize()};
}

Wave readWave(const QByteArray& file)
{
    QBuffer device;
    device.setData(file);
    device.open(QIODevice::ReadOnly);
    const WaveFile found = inspectWave(device);
    Wave wave = found.format;
    wave.samples = file.mid(found.begin, found.length);
    return wave;
}

QByteArray waveBytes(const Wave& wave)
{
    const auto size = quint32(wave.samples.size());
    const quint32 padding = size % 2;
    QByteArray file("RIFF");
    append(file, quint32(4 + chunkHead + formatSize + chunkHead) + size + padding);
    file.append("WAVEfmt ");
    append(file, quint32(formatSize));
    append(file, pcm);
    append(file, quint16(wave.channels));
    append(file, quint32(wave.sampleRate));
    append(file, quint32(wave.sampleRate * wave.frameSize()));
    append(file, quint16(wave.frameSize()));
    append(file, quint16(wave.bits));
    file.append("data");
    append(file, size);
    file.append(wave.samples);
    file.append(qsizetype(padding), '\0');
    return file;
}
