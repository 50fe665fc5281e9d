#include "platform/wave.h"

#include "platform/errors.h"

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
constexpr quint32 highestRate = 192'000;

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

/// The start of the chunk that follows the one ending at `end`. Chunks start at even offsets, but some
/// programs omit the padding byte.
qsizetype nextChunk(const QByteArray& file, qsizetype end)
{
    if (end % 2 == 0)
        return end;
    const QByteArray unpadded = file.mid(end, 4);
    return unpadded == "data" || unpadded == "fmt " ? end : end + 1;
}

/// The content of the first chunk of that name, truncated at the end of the file; null when there is none.
QByteArray chunk(const QByteArray& file, const char* name)
{
    qsizetype at = headSize;
    while (at + chunkHead <= file.size()) {
        const qsizetype begin = at + chunkHead;
        const qsizetype end = std::min(begin + qsizetype(numberAt<quint32>(file, at + 4)), file.size());
        if (file.mid(at, 4) == name)
            return file.mid(begin, end - begin);
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

Wave readWave(const QByteArray& file)
{
    if (!file.startsWith("RIFF") || file.mid(8, 4) != "WAVE")
        refuse();
    const QByteArray format = chunk(file, "fmt ");
    const QByteArray data = chunk(file, "data");
    if (format.size() < formatSize || data.isNull() || !isPcm(format))
        refuse();

    const auto channels = numberAt<quint16>(format, 2);
    const auto rate = numberAt<quint32>(format, 4);
    const auto bits = numberAt<quint16>(format, 14);
    if (channels < 1 || channels > mostChannels || rate < 1 || rate > highestRate ||
        (bits != 8 && bits != 16))
        refuse();

    Wave wave{int(rate), channels, bits, data};
    wave.samples.chop(data.size() % wave.frameSize());
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
