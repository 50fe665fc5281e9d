// The sound of the card in the editor: taken from a file, removed, recorded, played back.
#pragma once

#include <QByteArray>
#include <QString>

/// Remembers the card's sound as the pupil first meets it, so that another workstation's isn't replaced
/// without being kept.
void meetCardSound();

/// Makes the wave file the card's sound at once. False when that can't be done or it isn't a wave file; then
/// nothing has changed.
bool addSound(const QString& file);

/// Removes the card's sound at once; it is kept as the bin keeps its cards. Raises 53 when there is none any
/// more, 75 when it can't be removed.
void removeSound();

/// The file of the last recording: in the program's folder, or in the user's own where that can't be written.
QString workFile();

/// Deletes the last recording and starts a new one. False when there is no microphone.
bool beginRecording();

/// Ends the recording, if there is one, and puts it into the work file. It stays in memory as well until the
/// next one begins, so that it is there even when the file can't be written, and is never another
/// workstation's.
void endRecording();

/// Plays the last recording, ending it first. Raises 53 when there is none, 68 without a loudspeaker.
void playRecording();

/// The last recording as a wave file: the program's, or the one in the work file. Empty when there is none.
QByteArray lastRecording();

/// The editor is leaving: ends recording and playing.
void leaveCardSound();
