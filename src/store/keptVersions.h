// Keeps versions of cards that would be lost: replaced by another workstation's save, or deleted at the bin.
// They are stored in the hidden folder `.kept` of the database, each moment's files in a folder named after
// it, under their own names: copying them back restores the card. The oldest are removed when there are too
// many.
#pragma once

#include <QStringList>

inline constexpr qint64 mostKeptBytes = 50 << 20;
inline constexpr int mostKeptFiles = 500;

/// Copies these files of the open database. Raises the first error, 7 for a file too large to be kept.
void keepVersions(const QStringList& paths);

/// Moves these files out of the open database. A file that can't be kept is deleted; one that can't be
/// deleted stays.
void moveToKept(const QStringList& paths);
