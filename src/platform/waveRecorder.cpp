#include "platform/waveRecorder.h"

#include "platform/wavePlayer.h"

#include <QAudioDevice>
#include <QAudioSource>
#include <QIODevice>
#include <QMediaDevices>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int wantedRate = 22'050;
constexpr int bits = 16;
constexpr int watchTime = 2000; // milliseconds
constexpr double softest = -50; // decibels below the loudest that count as silence

QAudioFormat formatFor(const QAudioDevice& device)
{
    QAudioFormat format;
    format.setSampleRate(wantedRate);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return device.isFormatSupported(format) ? format : device.preferredFormat();
}

/// The mean of the frame's channels.
qint16 monoSample(const char* frame, const QAudioFormat& format)
{
    float sum = 0;
    for (int channel = 0; channel < format.channelCount(); ++channel)
        sum += format.normalizedSampleValue(frame + channel * format.bytesPerSample());
    const float mean = sum / float(format.channelCount());
    return qint16(std::lround(std::clamp(mean, -1.0F, 1.0F) * 32767));
}

} // namespace

/// The device that the sound system writes to.
class WaveRecorder::Inlet : public QIODevice {
public:
    explicit Inlet(WaveRecorder& owner)
        : recorder(owner)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override
    {
        recorder.accept(data, size);
        return size;
    }

private:
    WaveRecorder& recorder;
};

WaveRecorder::WaveRecorder()
    : inlet(std::make_unique<Inlet>(*this))
{
    watch.setInterval(watchTime);
    connect(&watch, &QTimer::timeout, this, &WaveRecorder::stopWhenGone);
}

WaveRecorder::~WaveRecorder() { stop(); }

bool WaveRecorder::start()
{
    stop();
    wave = {};
    const QAudioDevice device = QMediaDevices::defaultAudioInput();
    if (device.isNull())
        return false;
    format = formatFor(device);
    if (!format.isValid())
        return false;
    wave = {format.sampleRate(), 1, bits, {}};
    source = std::make_unique<QAudioSource>(device, format);
    // queued, since a source must not be stopped while it calls
    connect(source.get(), &QAudioSource::stateChanged, this, &WaveRecorder::stopWhenOver,
            Qt::QueuedConnection);
    source->start(inlet.get());
    deviceId = device.id();
    delivered = false;
    watch.start();
    if (source->error() == QAudio::NoError)
        return true;
    stop();
    return false;
}

void WaveRecorder::accept(const char* data, qint64 size)
{
    delivered = true;
    for (qint64 at = 0; at + format.bytesPerFrame() <= size && !isFull(); at += format.bytesPerFrame()) {
        char raw[sizeof(qint16)];
        qToLittleEndian(monoSample(data + at, format), raw);
        wave.samples.append(raw, sizeof raw);
    }
    if (isFull())
        QMetaObject::invokeMethod(this, &WaveRecorder::stopWhenOver, Qt::QueuedConnection);
}

bool WaveRecorder::isFull() const
{
    return wave.samples.size() >= qsizetype(longest) * wave.sampleRate * wave.frameSize();
}

void WaveRecorder::stopWhenOver()
{
    if (source && (isFull() || source->state() == QAudio::StoppedState))
        stop();
}

/// After a microphone has been unplugged the sound system goes on with silence or another device, or with
/// nothing at all, and reports no error.
void WaveRecorder::stopWhenGone()
{
    const auto inputs = QMediaDevices::audioInputs();
    const bool present = std::any_of(inputs.begin(), inputs.end(),
                                     [this](const auto& input) { return input.id() == deviceId; });
    if (!present || !delivered)
        stop();
    delivered = false;
}

void WaveRecorder::pause()
{
    if (!source)
        return;
    watch.stop();
    source->suspend();
}

void WaveRecorder::resume()
{
    if (!source)
        return;
    source->resume();
    delivered = false;
    watch.start();
}

/// An active source must be stopped before it is destroyed: Qt 6.4 crashes otherwise.
void WaveRecorder::stop()
{
    watch.stop();
    if (!source)
        return;
    source->disconnect(this);
    source->stop();
    source.reset();
    noteSoundStopped();
}

Wave WaveRecorder::take() { return std::exchange(wave, {}); }

qint64 WaveRecorder::duration() const
{
    return wave.samples.isEmpty() ? 0 : wave.samples.size() / wave.frameSize() * 1000 / wave.sampleRate;
}

double WaveRecorder::level() const
{
    const qsizetype bytes = std::min(qsizetype(wave.sampleRate / 10) * wave.frameSize(), wave.samples.size());
    if (bytes == 0)
        return 0;
    double sum = 0;
    for (qsizetype at = wave.samples.size() - bytes; at < wave.samples.size(); at += wave.frameSize()) {
        const double sample = qFromLittleEndian<qint16>(wave.samples.constData() + at) / 32768.0;
        sum += sample * sample;
    }
    const double mean = std::sqrt(sum / (double(bytes) / wave.frameSize()));
    return mean > 0 ? std::clamp(1 - 20 * std::log10(mean) / softest, 0.0, 1.0) : 0;
}
