#include "platform/soundDevices.h"

#include "platform/errors.h"
#include "platform/wavePlayer.h"
#include "platform/waveRecorder.h"

namespace {

std::unique_ptr<WaveRecorder> recorder; // made when one is first wanted
bool held = false;                      // player or recorder is paused

bool isRecording() { return recorder && recorder->isRecording(); }

} // namespace

void soundDevices::play(const QString& path)
{
    stop();
    playWaveFile(path);
}

void soundDevices::playBack(const QByteArray& waveFile)
{
    stop();
    if (!wavePlayer().play(readWave(waveFile)))
        throw RuntimeError(deviceUnavailable);
}

bool soundDevices::record()
{
    stop();
    if (!recorder)
        recorder = std::make_unique<WaveRecorder>();
    return recorder->start();
}

void soundDevices::pause(bool paused)
{
    held = paused;
    if (isRecording())
        paused ? recorder->pause() : recorder->resume();
    else
        paused ? wavePlayer().pause() : wavePlayer().resume();
}

void soundDevices::stop()
{
    held = false;
    if (recorder)
        recorder->stop();
    wavePlayer().stop();
}

QByteArray soundDevices::takeRecording()
{
    if (!recorder)
        return {};
    recorder->stop();
    const Wave wave = recorder->take();
    return wave.samples.isEmpty() ? QByteArray() : waveBytes(wave);
}

SoundProgress soundDevices::progress()
{
    using enum SoundActivity;
    SoundProgress now;
    if (recorder)
        now.recorded = recorder->duration();
    if (isRecording()) {
        now.activity = held ? recordingPaused : recording;
        now.level = held ? 0 : recorder->level();
    } else if (wavePlayer().isPlaying()) {
        now.activity = held ? playingPaused : playing;
    }
    return now;
}

void soundDevices::leave()
{
    recorder.reset();
    leaveSound();
}
