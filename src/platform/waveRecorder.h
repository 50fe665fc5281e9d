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

/// Records one sound in 16 bits and mono: at 22,050 samples a second if the device supports that, otherwise
/// at its own rate. Samples that arrive while it is paused are discarded.
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
    /// Returns the recording and clears it.
    Wave take();
    /// The length of the recording in milliseconds.
    qint64 duration() const;
    /// The loudness of the last tenth of a second on a logarithmic scale: 0 for silence, 1 for the loudest.
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
    QTimer watch;           // checks regularly that the device is still there
    bool delivered = false; // whether data arrived since the last check
    std::unique_ptr<QAudioSource> source;
};
