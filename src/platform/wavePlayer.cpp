#include "platform/wavePlayer.h"

#include "platform/errors.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QThread>

namespace {

constexpr qint64 buffered = 1'000'000;  // microseconds of sound passed on in advance
constexpr int afterTheLastSample = 100; // milliseconds
constexpr int settling = 100; // milliseconds: Qt 6.4 crashes when the program ends sooner after a stop
std::unique_ptr<WavePlayer> filePlayer;
QElapsedTimer sinceStop; // invalid until a sound has been stopped

QAudioFormat formatOf(const Wave& wave)
{
    QAudioFormat format;
    format.setSampleRate(wave.sampleRate);
    format.setChannelCount(wave.channels);
    format.setSampleFormat(wave.bits == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
    return format;
}

/// The samples of a wave file as a device of their own.
class FileSamples : public QIODevice {
public:
    FileSamples(std::unique_ptr<QFile> waveFile, const WaveFile& place)
        : file(std::move(waveFile))
        , left(place.length)
    {
        file->seek(place.begin);
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return left; }
    bool atEnd() const override { return left == 0; }

protected:
    qint64 readData(char* bytes, qint64 most) override
    {
        const qint64 count = file->read(bytes, std::min(most, left));
        left = count > 0 ? left - count : 0; // a file that was cut meanwhile, or whose share is gone, ends
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    std::unique_ptr<QFile> file;
    qint64 left;
};

} // namespace

WavePlayer::WavePlayer()
{
    ending.setSingleShot(true);
    connect(&ending, &QTimer::timeout, this, [this] {
        stop();
        Q_EMIT finished();
    });
}

WavePlayer::~WavePlayer() { stop(); }

bool WavePlayer::play(const Wave& wave)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(wave.samples);
    buffer->open(QIODevice::ReadOnly);
    return start(wave, std::move(buffer));
}

bool WavePlayer::playFile(const QString& path)
{
    auto file = std::make_unique<QFile>(path);
    if (!QFileInfo(path).isFile() || !file->open(QIODevice::ReadOnly))
        throw RuntimeError(fileNotFound);
    const WaveFile place = inspectWave(*file);
    return start(place.format, std::make_unique<FileSamples>(std::move(file), place));
}

bool WavePlayer::start(const Wave& wave, std::unique_ptr<QIODevice> source)
{
    stop();
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return false;
    const QAudioFormat format = formatOf(wave);
    samples = std::move(source);
    sink = std::make_unique<QAudioSink>(device, format);
    sink->setBufferSize(format.bytesForDuration(buffered));
    connect(sink.get(), &QAudioSink::stateChanged, this, &WavePlayer::followState);
    sink->start(samples.get());
    if (sink->error() == QAudio::NoError)
        return true;
    stop();
    return false;
}

/// "Idle" means the end only when no sample is left; otherwise a read came too late.
void WavePlayer::followState()
{
    if (sink->state() == QAudio::IdleState && samples->atEnd())
        ending.start(int(sink->format().durationForBytes(int(sink->bufferSize())) / 1000) +
                     afterTheLastSample);
    else if (sink->state() == QAudio::StoppedState && sink->error() != QAudio::NoError)
        ending.start(0);
}

void WavePlayer::pause()
{
    if (!sink)
        return;
    endingLeft = ending.isActive() ? ending.remainingTime() : -1;
    ending.stop();
    sink->suspend();
}

void WavePlayer::resume()
{
    if (!sink)
        return;
    sink->resume();
    if (endingLeft >= 0)
        ending.start(endingLeft);
}

/// An active sink must be stopped before it is destroyed: Qt 6.4 crashes otherwise.
void WavePlayer::stop()
{
    ending.stop();
    endingLeft = -1;
    if (sink) {
        sink->disconnect(this);
        sink->stop();
        sink.reset();
        noteSoundStopped();
    }
    samples.reset();
}

WavePlayer& wavePlayer()
{
    if (!filePlayer)
        filePlayer = std::make_unique<WavePlayer>();
    return *filePlayer;
}

void playWaveFile(const QString& path)
{
    ignoringErrors({[&] { wavePlayer().playFile(path); }});
}

void leaveSound()
{
    filePlayer.reset();
    if (sinceStop.isValid() && !sinceStop.hasExpired(settling))
        QThread::msleep(ulong(settling - sinceStop.elapsed()));
}

void noteSoundStopped() { sinceStop.start(); }
