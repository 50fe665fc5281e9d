// The program's player and recorder: its one loudspeaker and its one microphone. Only one of them works at a
// time; starting one stops the other. A recording that was stopped this way isn't lost.
//
// Each function does what its namesake in `desktop.sound` says.
#pragma once

#include "platform/desktop.h"

namespace soundDevices {

void play(const QString& path);
void playBack(const QByteArray& waveFile);
bool record();
void pause(bool paused);
void stop();
QByteArray takeRecording();
SoundProgress progress();

/// Call this last before the program ends. It calls leaveSound() of platform/wavePlayer.h.
void leave();

} // namespace soundDevices
