#include "platform/wavePlayer.h"

#include "support/freshStart.h"
#include "support/soundServer.h"

#include <QTest>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr int heardRate = 44100;
constexpr int patience = 15'000; // ms

/// A tone of that many hertz, mono.
Wave tone(double hertz, double seconds, int rate, int bits)
{
    Wave wave{rate, 1, bits, {}};
    for (int i = 0; i < int(seconds * rate); ++i) {
        const double swing = 0.6 * std::sin(2 * std::numbers::pi * hertz * i / rate);
        const int sample = bits == 8 ? int(128 + 127 * swing) : int(32767 * swing);
        wave.samples.append(char(sample));
        if (bits == 16)
            wave.samples.append(char(sample >> 8));
    }
    return wave;
}

/// The first sound in the recorded output.
struct Heard {
    std::vector<qint16> samples;
    SoundServer& server;

    void listen()
    {
        const auto more = server.heard();
        samples.insert(samples.end(), more.begin(), more.end());
    }
    static bool loud(qint16 sample) { return std::abs(sample) > 3000; }
    auto begin() const { return std::find_if(samples.begin(), samples.end(), loud); }
    auto end() const { return std::find_if(samples.rbegin(), samples.rend(), loud).base(); }
    bool began() { return listen(), begin() != samples.end(); }
    bool silentFor(double seconds) { return listen(), samples.end() - end() > seconds * heardRate; }

    double seconds() const { return double(end() - begin()) / heardRate; }
    double hertz() const
    {
        int risings = 0;
        for (auto s = begin(); s + 1 < end(); ++s)
            risings += *s < 0 && *(s + 1) >= 0;
        return risings / seconds();
    }
};

QString fileWith(const QByteArray& content)
{
    QFile file(testFolder() + u"card.snd"_s);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    return file.fileName();
}

using Playing = Fresh;

} // namespace

TEST_F(Playing, AWaveFileIsHeardAtItsPitchFromItsFirstToItsLastMoment)
{
    SoundServer server;
    for (const Wave& wave : {tone(440, 0.7, 44100, 16), tone(700, 1.6, 11025, 8)}) {
        Heard heard{{}, server};
        playWaveFile(fileWith(waveBytes(wave)));
        ASSERT_TRUE(QTest::qWaitFor([&] { return heard.began() && heard.silentFor(0.3); }, patience));
        const bool low = wave.bits == 16;
        EXPECT_NEAR(heard.seconds(), low ? 0.7 : 1.6, 0.03);
        EXPECT_NEAR(heard.hertz(), low ? 440 : 700, 12);
    }
}

TEST_F(Playing, ASecondSoundBreaksOffTheFirst)
{
    SoundServer server;
    Heard heard{{}, server};
    playWaveFile(fileWith(waveBytes(tone(300, 30, 11025, 8))));
    ASSERT_TRUE(QTest::qWaitFor([&] { return heard.began(); }, patience));
    playWaveFile(fileWith(waveBytes(tone(900, 0.5, 11025, 8))));
    ASSERT_TRUE(QTest::qWaitFor([&] { return heard.silentFor(0.5); }, patience));
    EXPECT_LT(heard.seconds(), 5);
}

TEST_F(Playing, APauseHoldsTheSoundAndItsEndIsTold)
{
    SoundServer server;
    Heard heard{{}, server};
    WavePlayer player;
    bool finished = false;
    QObject::connect(&player, &WavePlayer::finished, [&] { finished = true; });
    ASSERT_TRUE(player.play(tone(440, 2.5, 11025, 8)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return heard.began(); }, patience));
    player.pause();
    ASSERT_TRUE(QTest::qWaitFor([&] { return heard.silentFor(1.5); }, patience));
    EXPECT_FALSE(finished);
    player.resume();
    ASSERT_TRUE(QTest::qWaitFor([&] { return finished; }, patience));
    EXPECT_FALSE(player.isPlaying());
    heard.listen();
    EXPECT_GT(heard.seconds(), 3.9) << "the sound and the pause in it";
}

TEST_F(Playing, ADyingServerEndsTheSound)
{
    SoundServer server;
    Heard heard{{}, server};
    WavePlayer player;
    bool finished = false;
    QObject::connect(&player, &WavePlayer::finished, [&] { finished = true; });
    ASSERT_TRUE(player.play(tone(440, 30, 11025, 8)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return heard.began(); }, patience));
    server.kill();
    EXPECT_TRUE(QTest::qWaitFor([&] { return finished; }, patience));
    EXPECT_FALSE(player.isPlaying());
}

TEST_F(Playing, WithoutAServerAndWithABadFileNothingHappens)
{
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    EXPECT_FALSE(WavePlayer().play(tone(440, 1, 11025, 8)));
    playWaveFile(fileWith(waveBytes(tone(440, 1, 11025, 8))));
    playWaveFile(fileWith("no wave"));
    playWaveFile(testFolder() + u"missing.snd"_s);
    EXPECT_TRUE(recorded.messages.isEmpty());
    EXPECT_EQ(recorded.beeps, 0);
}
