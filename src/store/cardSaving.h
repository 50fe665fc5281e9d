// Writes the files of a card without losing another workstation's work. A file that was changed since the
// card was loaded, or is damaged, is copied to the kept versions (store/keptVersions) before it is replaced;
// a file that couldn't be read is not replaced.
#pragma once

#include <QByteArray>

/// Copies `DataBox` to the values of the card, writes its record and sets the card's tooltip to its label. A
/// failure is shown in the error box: 75 when the record on the disk couldn't be read.
void saveCardValues(int card);

/// Writes what `Picture1` shows as the card's picture, unless cards are strips. A failure is shown in the
/// error box.
void saveCardPicture(int card);

/// Makes the wave file the card's sound. The one that it replaces is kept, since a pupil can't see what is
/// replaced. Raises the first error.
void writeCardSound(int card, const QByteArray& waveFile);

/// Writes the card as the editor shows it: its sound, if one is given, its record, and its picture when that
/// was changed in the editor or has no file. A damaged record stays as it is while all boxes are empty.
/// Returns true when another workstation's version was kept. Raises the first error; what wasn't written by
/// then stays unchanged, in the session too.
bool writeEditedCard(int card, const QByteArray& waveFile = {});
