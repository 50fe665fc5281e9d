// What the open database's files held when this program last read or wrote them. Before a file is replaced it
// is compared with that: what couldn't be read is not written over, and what somebody else has written since
// is not lost.
#pragma once

#include "core/session.h"

/// The bytes of the file; they, or that it can't be read, are its last known state from now on. Raises as
/// readWholeFile().
QByteArray readAndRemember(const QString& path, qint64 limit);

/// As it was last read or written; one that never was counts as missing.
FileState knownState(const QString& path);

/// As it is on the disk now. Raises nothing.
FileState stateOnDisk(const QString& path);

/// The same for a file that is about to be replaced. Raises 75 when there is one that can't be read, and 76
/// when its folder isn't there.
FileState stateToReplace(const QString& path);

/// Replaces the file and remembers what it holds now. Raises as replaceFile(); a new file takes over the
/// rights of the database's description, so that whoever can write the database can write its cards.
void replaceAndRemember(const QString& path, const QByteArray& bytes);
