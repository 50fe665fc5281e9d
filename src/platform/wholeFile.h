// Files read and written whole. A reader, on this workstation or another, sees the old file or the new one.
#pragma once

#include <QByteArray>
#include <QString>

inline constexpr qint64 largestFile = 256 << 20;   // bytes; every file of a database is smaller
inline constexpr qint64 largestTextFile = 1 << 20; // of a file of items

/// Returns the bytes of a regular file. Raises 53 when it doesn't exist, 76 when its folder doesn't, 75 when
/// it can't be read or isn't a regular file, 7 when it is larger than `limit`, and 57, 68 or 70 for a failing
/// disk.
QByteArray readWholeFile(const QString& path, qint64 limit = largestFile);

/// Replaces the file atomically: writes `bytes` to a new file beside it and renames that. The new file has
/// the owner, group, mode and access list of the old one; where there is no old one, those of the file
/// `like`, if given. After an error the old file is unchanged. Raises 61 on a full disk, 70 on one that can't
/// be written to, 75 when the file or its folder is read-only, 76 when the folder isn't there, 57 or 68 when
/// the disk fails.
///
/// Where only the file may be written, not its folder, or where a new file can't get its rights, the file is
/// overwritten in place, in space that was reserved first. This is not atomic: a reader may see a mixture.
void replaceFile(const QString& path, const QByteArray& bytes, const QString& like = {});

/// Whether a file's bytes are written to the disk before it takes its place, or by flushDiskOf() afterwards.
enum class Flush { now, later };

/// Makes a file, or replaces it atomically, with the rights of any new file there; if it can be run, then by
/// all who may read it. A link is replaced, not followed. After an error there is the old file or none.
/// Raises what replaceFile() raises.
void placeFile(const QString& path, const QByteArray& bytes, bool canBeRun, Flush flush);

/// Waits until everything written to the folder's disk is on it. Raises what replaceFile() raises.
void flushDiskOf(const QString& folder);

/// Makes a folder, with the rights of the folder `like`, if given. Raises 75 when the name is taken or the
/// parent folder can't be written to, 76 when that doesn't exist or the name is too long, and 61, 70, 57 or
/// 68 as replaceFile() does.
void makeFolder(const QString& path, const QString& like = {});

/// Removes the temporary files of killed writers from the folder: those of this machine at once, others when
/// they are older than ten minutes by the folder's own clock. Files that can't be removed are left.
void sweepLeftovers(const QString& folder);
