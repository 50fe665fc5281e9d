// The files of a card: its record, its picture and its sound. Card i's files bear the name cardId(i) in the
// open database's folder.
#pragma once

#include "store/paths.h"

#include <QByteArray>
#include <QString>

/// Reads the record of card i into its values. Errors are passed over: a value that can't be read repeats the
/// last one that was, and is empty when none was.
void loadCardValues(int card);

/// Takes the values of card i from `DataBox` and writes its record; then the card's tooltip is its label.
/// A failure is told in the error box.
void saveCardValues(int card);

/// The same, but a failure is raised.
void writeCardValues(int card);

/// The path of the card's picture.
QString cardPicturePath(int card);

/// Shows the card's picture in `Picture1`; nothing when cards are strips. After a failure, which is told in
/// the error box, `Picture1` shows what it did before.
void loadCardPicture(int card);

/// The same with bytes that were read before: those of a picture file. False when they are no picture.
bool showCardPicture(const QByteArray& bytes);

/// Writes what `Picture1` shows as the card's picture, unless cards are strips. A failure is told in the
/// error box.
void saveCardPicture(int card);

/// The same, but a failure is raised.
void writeCardPicture(int card);

/// Plays the card's sound, if it has one, without waiting for its end.
void playCardSound(int card);
bool cardHasSound(int card);

/// Deletes the answers to the open database's questions; passes over a failure.
void deleteAnswers();
