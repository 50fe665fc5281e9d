// The files of a card: its record, its picture and its sound. Card i's files have the name cardId(i) and an
// ending each, in the open database's folder.
#pragma once

#include "store/paths.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

inline constexpr int idLength = 8;
inline constexpr QLatin1StringView recordEnding(".tcd");
inline constexpr QLatin1StringView pictureEnding(".bmp");
inline constexpr QLatin1StringView soundEnding(".snd");

/// Eight random capitals: the identity of a new card.
QString newCardId();

/// The identity of the card whose record file has that name: what stands before the ending, cut to eight.
QString cardIdOf(const QString& recordName);

/// The path of the card's file with that ending, in the capitals in which the folder has it.
QString cardFilePath(const QString& folder, const QString& cardId, QLatin1StringView ending);

/// Reads the record of card i into its values. Errors are ignored: a value that can't be read repeats the
/// last one that was, or is empty if there was none.
void loadCardValues(int card);

/// The path of the card's record: the file called by its identity, or the one that it was found in where
/// there is none of that name.
QString cardRecordPath(int card);

/// The path of the card's picture.
QString cardPicturePath(int card);

/// The path of the card's sound.
QString cardSoundPath(int card);

/// Loads the card's picture into `Picture1`; nothing when cards are strips. A failure is shown in the error
/// box, and `Picture1` keeps its content.
void loadCardPicture(int card);

/// The same from the bytes of a picture file. False when they are not a picture.
bool showCardPicture(const QByteArray& bytes);

/// The bytes of the card's picture file. Raises as readWholeFile().
QByteArray readCardPicture(int card);

/// Plays the card's sound, if it has one, without waiting for its end.
void playCardSound(int card);
bool cardHasSound(int card);

/// The files that go when a record is deleted: the record of that name, the usual one of the identity when it
/// is empty, and picture and sound unless another record of the folder has the same identity.
QStringList cardFilesOfOneRecord(const QString& cardId, const QString& recordName);
