// The sound of the card in the editor: taken from a file, removed, recorded, played back.
#pragma once

#include <QByteArray>
#include <QString>

/// Remembers the present content of the card's sound file. Call it when the sound page is first shown: a
/// sound that differs when it is replaced was saved by another workstation.
void rememberCardSound();

/// Makes the wave file the card's sound at once. False when that can't be done or it isn't a wave file; then
/// nothing has changed.
bool addSound(const QString& file);

/// Removes the card's sound at once and keeps it in `.kept`. Raises 53 when the file is missing, 75 when it
/// can't be removed.
void removeSound();

/// The file of the last recording: in the program's folder, or in the user's own where that can't be written.
QString workFile();

/// Deletes the last recording and starts a new one. False when there is no microphone.
bool beginRecording();

/// Ends the recording, if there is one, and writes it to the work file. A copy stays in
/// `session.editor.recording` until the next recording begins: it survives a failed write, and no other
/// workstation can replace it.
void endRecording();

/// Plays the last recording, ending it first. Raises 53 when there is none, 68 without a loudspeaker.
void playRecording();

/// The last recording as a wave file: the program's, or the one in the work file. Empty when there is none.
QByteArray lastRecording();

/// Ends recording and playing, and forgets what rememberCardSound() remembered. Call it when the editor
/// closes.
void leaveCardSound();
