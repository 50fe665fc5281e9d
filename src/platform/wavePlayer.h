// Plays sounds without waiting for their end.
//
// Nothing of the sound system is touched before the first sound is wanted: a sound server that hangs must not
// keep the program from starting.
#pragma once

#include "platform/wave.h"

#include <QBuffer>
#include <QObject>
#include <QTimer>

#include <memory>

class QAudioSink;

/// Plays one sound at a time.
class WavePlayer : public QObject {
    Q_OBJECT
public:
    WavePlayer();
    ~WavePlayer() override;

    /// Starts the sound; one that still plays is broken off. False when there is nothing to play it on.
    bool play(const Wave& wave);
    void pause();
    void resume();
    void stop();
    bool isPlaying() const { return sink != nullptr; }

Q_SIGNALS:
    /// The sound came to its end, or the sound server went away. Not sent by stop().
    void finished();

private:
    void followState();

    QBuffer samples;
    QTimer ending; // from the last sample handed over to the last one heard
    int endingLeft = -1;
    std::unique_ptr<QAudioSink> sink;
};

/// Plays the wave file; one that still plays is broken off. A file that can't be played is passed over.
void playWaveFile(const QString& path);

/// To be called last of all before the program ends: stops what plays and waits until the sound system has
/// let go, which takes a tenth of a second. Returns at once when no sound was used.
void leaveSound();

/// Tells that a sound device was just stopped, so that leaveSound() waits long enough.
void noteSoundStopped();
