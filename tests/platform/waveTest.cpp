#include "platform/wave.h"

#include "platform/errors.h"
#include "support/files.h"

namespace {

QByteArray bytes(quint64 value, int count)
{
    QByteArray result;
    for (int i = 0; i < count; ++i)
        result.append(char(value >> (8 * i)));
    return result;
}

QByteArray chunk(const char* name, const QByteArray& content)
{
    return name + bytes(content.size(), 4) + content;
}

QByteArray format(int kind, int channels, int rate, int bits)
{
    const int frame = channels * bits / 8;
    return bytes(kind, 2) + bytes(channels, 2) + bytes(rate, 4) + bytes(rate * frame, 4) + bytes(frame, 2) +
           bytes(bits, 2);
}

QByteArray extensible(int kind)
{
    return format(0xFFFE, 2, 44100, 16) + bytes(22, 2) + bytes(16, 2) + bytes(3, 4) + bytes(kind, 2) +
           QByteArray::fromHex("000000001000800000aa00389b71");
}

QByteArray riff(const QByteArray& chunks) { return "RIFF" + bytes(4 + chunks.size(), 4) + "WAVE" + chunks; }

const QByteArray plainFormat = chunk("fmt ", format(1, 1, 11025, 8));
const QByteArray plainFile = riff(plainFormat + chunk("data", "abcd"));

struct Readable {
    const char* what;
    QByteArray file;
    QByteArray samples;
};

} // namespace

TEST(Waves, GiveTheSoundThatDamagedAndUnusualFilesStillHold)
{
    const QByteArray fourTwice = QByteArray("abcdabcd");
    const Readable cases[] = {
        {"plain", plainFile, "abcd"},
        {"no samples", riff(plainFormat + chunk("data", "")), ""},
        {"cut in the samples", plainFile.chopped(2), "ab"},
        {"cut before the first sample", plainFile.chopped(4), ""},
        {"a half frame at the end", riff(chunk("fmt ", format(1, 2, 8000, 16)) + chunk("data", "abcdefg")),
         "abcd"},
        {"data longer than the file", riff(plainFormat + "data" + bytes(0xFFFFFFFF, 4) + "abcd"), "abcd"},
        {"a wrong RIFF size", "RIFF" + bytes(0, 4) + plainFile.mid(8), "abcd"},
        {"other chunks around, an odd one filled",
         riff(chunk("LIST", "odd") + bytes(0, 1) + plainFormat + chunk("fact", "1234") +
              chunk("data", "abcd") + chunk("id3 ", "tail")),
         "abcd"},
        {"an odd chunk without its filling byte",
         riff(chunk("LIST", "odd") + plainFormat + chunk("data", "abcd")), "abcd"},
        {"the data first", riff(chunk("data", "abcd") + plainFormat), "abcd"},
        {"the lowest rate", riff(chunk("fmt ", format(1, 1, 1000, 8)) + chunk("data", "abcd")), "abcd"},
        {"the highest", riff(chunk("fmt ", format(1, 1, 384000, 8)) + chunk("data", "abcd")), "abcd"},
        {"extensible", riff(chunk("fmt ", extensible(1)) + chunk("data", fourTwice)), fourTwice},
    };
    for (const auto& [what, file, samples] : cases)
        EXPECT_EQ(readWave(file).samples, samples) << what;
}

TEST(Waves, RefuseWhatCannotBePlayed)
{
    const QByteArray data = chunk("data", "abcd");
    const QByteArray cases[] = {
        {},
        "RIFF",
        "RIFX" + plainFile.mid(4),
        "RIFF" + bytes(4, 4) + "AVI ",
        riff({}),
        riff(data),
        riff(plainFormat),
        riff(plainFormat.chopped(2)) + data,
        riff(chunk("fmt ", format(1, 1, 11025, 8).chopped(2)) + data),
        riff(chunk("fmt ", format(2, 1, 11025, 8)) + data),
        riff(chunk("fmt ", format(3, 1, 44100, 32)) + data),
        riff(chunk("fmt ", format(1, 1, 11025, 24)) + data),
        riff(chunk("fmt ", format(1, 0, 11025, 8)) + data),
        riff(chunk("fmt ", format(1, 65535, 11025, 16)) + data),
        riff(chunk("fmt ", format(1, 1, 999, 8)) + data),
        riff(chunk("fmt ", format(1, 1, 384001, 8)) + data),
        riff(chunk("fmt ", format(1, 1, -1, 16)) + data),
        riff(chunk("fmt ", extensible(3)) + data),
        riff(chunk("fmt ", extensible(1).chopped(8)) + data),
    };
    for (const QByteArray& file : cases)
        EXPECT_EQ(errorOf([&] { readWave(file); }), deviceError) << file.toHex().toStdString();
}

TEST(Waves, AreWrittenAsTheFilesThatOthersMake)
{
    EXPECT_EQ(waveBytes({11025, 1, 8, "abcd"}), plainFile);
    EXPECT_EQ(waveBytes({11025, 1, 8, "abc"}), riff(plainFormat + chunk("data", "abc") + bytes(0, 1)));
    const Wave stereo = readWave(waveBytes({44100, 2, 16, "abcdefgh"}));
    EXPECT_EQ(stereo.sampleRate, 44100);
    EXPECT_EQ(stereo.channels, 2);
    EXPECT_EQ(stereo.bits, 16);
    EXPECT_EQ(stereo.samples, "abcdefgh");
}
