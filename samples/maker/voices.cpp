#include "voices.h"

#include <QHash>
#include <QList>
#include <QtEndian>
#include <QtMath>

#include <cmath>
#include <random>
#include <stdexcept>

namespace {

constexpr int sampleRate = 22050;

struct Note {
    double start, length; // seconds
    double from, to;      // hertz at its start and its end
    double loudness = 1;
};

struct Partial {
    double ratio; // of its pitch to the note's
    double loudness;
};

struct Voice {
    QList<Note> notes;
    QList<Partial> partials;
    double attack = 0.01; // seconds to full loudness
    double halfLife = 0;  // seconds in which a struck or plucked note loses half of it; 0 for a held one
    double vibrato = 0;   // share of the pitch, 5.5 times a second
    double flutter = 0;   // how often a second the loudness falls to nothing
    double noise = 0;     // loudness of the noise in the note
    double noiseBrightness = 1; // 1 hisses, 0.1 rumbles
};

/// The overtones 1, 2, 3 … with these loudnesses.
QList<Partial> overtones(std::initializer_list<double> loudnesses)
{
    QList<Partial> partials;
    for (const double loudness : loudnesses)
        partials.append({partials.size() + 1.0, loudness});
    return partials;
}

const QList<Partial> pluckedString = overtones({1, 0.55, 0.4, 0.25, 0.15, 0.1, 0.05});
const QList<Partial> bowedString = overtones({1, 0.5, 0.45, 0.3, 0.22, 0.2, 0.14, 0.1, 0.08});
const QList<Partial> brass = overtones({0.7, 0.9, 1, 0.8, 0.6, 0.45, 0.3, 0.2, 0.1});
const QList<Partial> softPipe = overtones({1, 0.25, 0.08});
const QList<Partial> throat = overtones({0.6, 0.7, 1, 1, 0.9, 0.6, 0.35, 0.2, 0.1});

const QHash<QString, Voice> voices{
    // Instruments
    {"drum",
     {.notes = {{0, 0.3, 190, 90},
                {0.3, 0.3, 190, 90, 0.6},
                {0.45, 0.3, 190, 90, 0.6},
                {0.6, 0.3, 190, 90},
                {0.9, 0.5, 190, 90}},
      .partials = {{1, 1}, {1.59, 0.5}, {2.14, 0.3}},
      .attack = 0.002,
      .halfLife = 0.05,
      .noise = 0.7,
      .noiseBrightness = 0.7}},
    {"flute",
     {.notes = {{0, 0.3, 587, 587}, {0.3, 0.3, 659, 659}, {0.6, 0.3, 740, 740}, {0.9, 0.8, 880, 880}},
      .partials = softPipe,
      .attack = 0.05,
      .vibrato = 0.006,
      .noise = 0.05,
      .noiseBrightness = 0.6}},
    {"guitar",
     {.notes = {{0, 1.8, 82.4, 82.4},
                {0.07, 1.7, 123.5, 123.5},
                {0.14, 1.65, 164.8, 164.8},
                {0.21, 1.6, 207.7, 207.7},
                {0.28, 1.5, 246.9, 246.9},
                {0.35, 1.45, 329.6, 329.6}},
      .partials = pluckedString,
      .attack = 0.004,
      .halfLife = 0.3}},
    {"harp",
     {.notes = {{0, 0.8, 262, 262},
                {0.12, 0.8, 330, 330},
                {0.24, 0.8, 392, 392},
                {0.36, 0.8, 523, 523},
                {0.48, 0.8, 659, 659},
                {0.6, 0.8, 784, 784},
                {0.72, 1.1, 1047, 1047}},
      .partials = softPipe,
      .attack = 0.004,
      .halfLife = 0.22}},
    {"recorder", // B, A, G: the first three notes that one learns
     {.notes = {{0, 0.4, 988, 988}, {0.42, 0.4, 880, 880}, {0.84, 0.8, 784, 784}},
      .partials = overtones({1, 0.04, 0.16, 0.02, 0.05}),
      .attack = 0.03,
      .noise = 0.03}},
    {"triangle",
     {.notes = {{0, 0.5, 1180, 1180, 0.7}, {0.4, 1.5, 1180, 1180}},
      .partials = {{1, 0.5}, {2.76, 1}, {5.4, 0.8}, {8.6, 0.3}},
      .attack = 0.001,
      .halfLife = 0.3}},
    {"trumpet",
     {.notes = {{0, 0.18, 392, 392},
                {0.2, 0.18, 523, 523},
                {0.4, 0.18, 659, 659},
                {0.6, 0.35, 784, 784},
                {0.98, 0.16, 659, 659},
                {1.16, 0.7, 784, 784}},
      .partials = brass,
      .attack = 0.03,
      .vibrato = 0.002}},
    {"violin",
     {.notes = {{0, 0.45, 440, 440}, {0.45, 0.45, 554, 554}, {0.9, 0.9, 659, 659}},
      .partials = bowedString,
      .attack = 0.09,
      .vibrato = 0.008,
      .noise = 0.03}},

    // Animals
    {"bee",
     {.notes = {{0, 0.9, 220, 260}, {0.9, 0.8, 260, 200}},
      .partials = bowedString,
      .attack = 0.15,
      .vibrato = 0.02}},
    {"cobra", {.notes = {{0, 1.5, 1, 1}}, .partials = {}, .attack = 0.5, .noise = 1}},
    {"dolphin",
     {.notes = {{0, 0.35, 3000, 7000}, {0.4, 0.3, 6500, 3500}, {0.8, 0.5, 3500, 8000}},
      .partials = overtones({1}),
      .attack = 0.05,
      .vibrato = 0.01}},
    {"duck",
     {.notes = {{0, 0.22, 300, 230}, {0.35, 0.22, 300, 230}, {0.7, 0.3, 310, 210}},
      .partials = throat,
      .attack = 0.02,
      .noise = 0.3,
      .noiseBrightness = 0.4}},
    {"elephant",
     {.notes = {{0, 0.3, 320, 560}, {0.3, 0.8, 560, 520}, {1.1, 0.4, 520, 300}},
      .partials = brass,
      .attack = 0.06,
      .vibrato = 0.02,
      .noise = 0.5,
      .noiseBrightness = 0.4}},
    {"frog",
     {.notes = {{0, 0.45, 430, 520}, {0.6, 0.45, 430, 520}},
      .partials = throat,
      .attack = 0.05,
      .flutter = 32}},
    {"lion",
     {.notes = {{0, 1.7, 105, 70}},
      .partials = throat,
      .attack = 0.4,
      .flutter = 21,
      .noise = 1.5,
      .noiseBrightness = 0.12}},
    {"owl",
     {.notes = {{0, 0.45, 690, 640}, {0.8, 0.12, 640, 650}, {1, 0.9, 700, 620}},
      .partials = softPipe,
      .attack = 0.08,
      .vibrato = 0.012,
      .noise = 0.03}},
};

/// How loud a note is at time t of its length; it fades out in its last 30 milliseconds.
double envelope(const Voice& voice, const Note& note, double t)
{
    const double rise = qMin(1.0, t / voice.attack), fall = qMin(1.0, (note.length - t) / 0.03);
    const double decay = voice.halfLife > 0 ? std::pow(0.5, t / voice.halfLife) : 1;
    const double flutter = voice.flutter > 0 ? 0.5 - 0.5 * std::cos(2 * M_PI * voice.flutter * t) : 1;
    return note.loudness * rise * fall * decay * flutter;
}

void addNote(QList<double>& sound, const Voice& voice, const Note& note)
{
    std::minstd_rand chance(1);
    double phase = 0, noise = 0;
    const int first = qRound(note.start * sampleRate), length = qRound(note.length * sampleRate);
    for (int i = 0; i < length; ++i) {
        const double t = double(i) / sampleRate;
        const double bend = 1 + voice.vibrato * std::sin(2 * M_PI * 5.5 * t);
        phase += 2 * M_PI * (note.from + (note.to - note.from) * i / length) * bend / sampleRate;
        double value = 0;
        for (const Partial& partial : voice.partials)
            value += partial.loudness * std::sin(phase * partial.ratio);
        noise += voice.noiseBrightness * (2.0 * chance() / std::minstd_rand::max() - 1 - noise);
        sound[first + i] += envelope(voice, note, t) * (value + voice.noise * noise);
    }
}

Wave sing(const Voice& voice)
{
    double end = 0;
    for (const Note& note : voice.notes)
        end = qMax(end, note.start + note.length);
    QList<double> sound(qRound(end * sampleRate) + 1, 0.0);
    for (const Note& note : voice.notes)
        addNote(sound, voice, note);
    double loudest = 0;
    for (const double value : sound)
        loudest = qMax(loudest, std::abs(value));
    Wave wave{sampleRate, 1, 16, QByteArray(sound.size() * 2, '\0')};
    for (int i = 0; i < sound.size(); ++i)
        qToLittleEndian(qint16(qRound(sound[i] / loudest * 0.7 * 32767)), wave.samples.data() + 2 * i);
    return wave;
}

} // namespace

Wave voiceOf(const QString& name)
{
    if (!voices.contains(name))
        throw std::runtime_error("there is no sound " + name.toStdString());
    return sing(voices[name]);
}

Wave callOf(const Monster& monster)
{
    static const double tune[] = {1, 1.25, 1.5, 2, 1.5};
    const double deepest = 230 * std::pow(2, (100 - monster.height) / 25.0), step = 0.19;
    Voice voice{
        .notes = {}, .partials = overtones({1, 0.6, 0.15, 0.25, 0.1}), .attack = 0.03, .vibrato = 0.015};
    for (int i = 0; i < monster.eyes; ++i)
        voice.notes.append({i * step, step * 0.9, deepest * tune[i] * 0.9, deepest * tune[i]});
    return sing(voice);
}
