// The content of the open database's files when this program last read or wrote them. Before a file is
// replaced, the disk is compared with it: a file that couldn't be read is not overwritten, and a version that
// another workstation wrote since then can be kept.
#pragma once

#include "core/session.h"

/// Reads the file and remembers its bytes, or the error, as its last known state. Raises as readWholeFile().
QByteArray readAndRemember(const QString& path, qint64 limit);

/// True when no box is due: a tick of the refresh has found the file in the state that a box has reported.
bool alreadyTold(const QString& path);

/// Remembers that a box has reported the file in the state in which it was last read.
void rememberTold(const QString& path);

/// The state when the file was last read or written; missing when it never was.
FileState knownState(const QString& path);

/// Forgets all files with this ending: they count as never read.
void forgetStates(QLatin1StringView ending);

/// The state on the disk now. Raises nothing.
FileState stateOnDisk(const QString& path);

/// The same for a file that is about to be replaced. Raises 75 when the file exists but can't be read, and 76
/// when its folder doesn't exist.
FileState stateToReplace(const QString& path);

/// Replaces the file and remembers its new content. Raises as replaceFile(). A new file gets the rights of
/// the database's description, so that all who can write the database can write its cards.
void replaceAndRemember(const QString& path, const QByteArray& bytes);
