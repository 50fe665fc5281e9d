// Reading and writing wave files (RIFF/WAVE) of 8 and 16 bit PCM.
#pragma once

#include <QByteArray>

class QIODevice;

/// A sound in memory. `samples` holds whole frames, little-endian: 8 bits are unsigned, 16 bits signed.
struct Wave {
    int sampleRate = 0; // frames a second
    int channels = 0;
    int bits = 0; // of a sample: 8 or 16
    QByteArray samples;

    int frameSize() const { return channels * bits / 8; }
};

/// Where the samples of a wave file stand in it.
struct WaveFile {
    Wave format; // without samples
    qint64 begin = 0;
    qint64 length = 0; // bytes, whole frames
};

/// Looks at a wave file without reading its samples. The device must be open and allow to move about in it.
/// Raises 57 as readWave() does.
WaveFile inspectWave(QIODevice& file);

/// Reads a wave file. A truncated file, or one with wrong sizes, gives the sound that it still contains.
/// Raises 57 for anything that isn't a wave file, and for rates and sample formats that nothing plays.
Wave readWave(const QByteArray& file);

/// The sound as the bytes of a wave file.
QByteArray waveBytes(const Wave& wave);
