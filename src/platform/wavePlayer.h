// Plays sounds without waiting for their end.
//
// The sound system isn't used before the first sound: a sound server that hangs must not keep the program
// from starting.
#pragma once

#include "platform/wave.h"

#include <QObject>
#include <QTimer>

#include <memory>

class QAudioSink;
class QIODevice;

/// Plays one sound at a time.
class WavePlayer : public QObject {
    Q_OBJECT
public:
    WavePlayer();
    ~WavePlayer() override;

    /// Starts the sound, stopping one that still plays. False when there is no output device.
    bool play(const Wave& wave);
    /// The same for a wave file, which is read while it plays. Raises 57 when it is none, 53 when it can't be
    /// opened.
    bool playFile(const QString& path);
    void pause();
    void resume();
    void stop();
    bool isPlaying() const { return sink != nullptr; }

Q_SIGNALS:
    /// The sound has ended, or the sound server has disappeared. Not emitted by stop().
    void finished();

private:
    bool start(const Wave& format, std::unique_ptr<QIODevice> source);
    void followState();

    std::unique_ptr<QIODevice> samples;
    QTimer ending; // from the last sample passed on to the last one heard
    int endingLeft = -1;
    std::unique_ptr<QAudioSink> sink;
};

/// The program's one player, made at the first call.
WavePlayer& wavePlayer();

/// Plays the wave file, stopping one that still plays. A file that can't be played is ignored.
void playWaveFile(const QString& path);

/// Call this last before the program ends. Stops the sound and waits a tenth of a second, until the sound
/// system has released its resources. Returns at once when no sound was played.
void leaveSound();

/// Call this when a sound device has just been stopped, so that leaveSound() waits long enough.
void noteSoundStopped();
