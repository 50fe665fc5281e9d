// Records sounds with the microphone.
//
// As with the player, the sound system isn't used before it is wanted.
#pragma once

#include "platform/wave.h"

#include <QAudioFormat>
#include <QObject>
#include <QTimer>

#include <memory>

class QAudioSource;

/// Records one sound in 16 bits and mono: at 22,050 samples a second where the device can, else at its own
/// rate. What comes in while it is paused is left out.
class WaveRecorder : public QObject {
    Q_OBJECT
public:
    static constexpr int longest = 600; // seconds; then the recording ends by itself

    WaveRecorder();
    ~WaveRecorder() override;

    /// Starts afresh; what was recorded before is dropped. False when there is no microphone.
    bool start();
    void pause();
    void resume();
    void stop();
    /// False also after the recording has ended by itself: at its longest, or when sound server or microphone
    /// have disappeared.
    bool isRecording() const { return source != nullptr; }

    /// What has been recorded since start().
    const Wave& recorded() const { return wave; }
    /// The same, and forgets it.
    Wave take();
    /// Milliseconds of it.
    qint64 duration() const;
    /// How loud the last tenth of a second was, on the scale of the ear: 0 for silence, 1 for the loudest.
    double level() const;

private:
    class Inlet;

    void accept(const char* data, qint64 size);
    void stopWhenOver();
    void stopWhenGone();
    bool isFull() const;

    QAudioFormat format; // of the device
    Wave wave;
    std::unique_ptr<Inlet> inlet;
    QByteArray deviceId;
    QTimer watch;           // looks now and then whether the device is still there
    bool delivered = false; // since it looked last
    std::unique_ptr<QAudioSource> source;
};
