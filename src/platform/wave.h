// Reading and writing wave files (RIFF/WAVE) of 8 and 16 bit PCM.
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

/// Reads a wave file. A truncated file, or one with wrong sizes, gives the sound that it still contains.
/// Raises 57 for anything that isn't a wave file and for sample formats other than these.
Wave readWave(const QByteArray& file);

/// The sound as the bytes of a wave file.
QByteArray waveBytes(const Wave& wave);
