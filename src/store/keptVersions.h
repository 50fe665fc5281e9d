// Versions of cards that would be lost: replaced by somebody else's save, or deleted at the bin. They lie in
// the hidden folder `.kept` of the database, those of one moment in a folder named after it, under their own
// names: copying them back undoes the loss. The oldest go first when there are too many.
#pragma once

#include <QStringList>

inline constexpr qint64 mostKeptBytes = 50 << 20;
inline constexpr int mostKeptFiles = 500;

/// Copies the files of the open database. Raises what stands in the way, 7 for a file too large to be kept.
void keepVersions(const QStringList& paths);

/// Takes the files out of the open database. One that can't be kept is deleted; one that can't be deleted
/// stays.
void moveToKept(const QStringList& paths);
