// Sounds as wave files hold them: our own reader and writer of RIFF/WAVE, for 8 and 16 bit PCM.
#pragma once

#include <QByteArray>

/// A sound in memory. `samples` holds whole frames, little-endian: 8 bits are unsigned, 16 bits signed.
struct Wave {
    int sampleRate = 0; // frames a second
    int channels = 0;
    int bits = 0; // of a sample: 8 or 16
    QByteArray samples;

    int frameSize() const { return channels * bits / 8; }
};

/// Takes a wave file apart. A file that was cut short, or tells wrong sizes, gives the sound it still holds.
/// Raises 57 for anything that isn't a wave file, and for compressed or other samples.
Wave readWave(const QByteArray& file);

/// The sound as a whole wave file.
QByteArray waveBytes(const Wave& wave);
