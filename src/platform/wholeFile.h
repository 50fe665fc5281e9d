// Files read and written whole. A reader, on this workstation or another, sees the old file or the new one.
#pragma once

#include <QByteArray>
#include <QString>

inline constexpr qint64 largestFile = 256 << 20;   // bytes; every file of a database is smaller
inline constexpr qint64 largestTextFile = 4 << 20; // of a file of items

/// The bytes of a regular file. Raises 53 when it isn't there, 76 when its folder isn't, 75 when it can't be
/// read or is no regular file, 7 when it is larger than `limit`, and 57, 68 or 70 as the system reports.
QByteArray readWholeFile(const QString& path, qint64 limit = largestFile);

/// Puts `bytes` into the place of the file at one stroke: they are written to a new file beside it, which
/// then takes its name and its rights, so that whoever could read and write it still can. A file that isn't
/// there yet gets the rights of the file `like`, where one is named. After an error the old file is there,
/// whole. Raises 61 on a full disk, 70 on one that can't be written to, 75 when the file or its folder is
/// read-only, 76 when the folder isn't there, 57 or 68 when the disk fails.
///
/// Where only the file may be written, not its folder, or where a new file can't have its rights, it is
/// overwritten where it stands, in room reserved before; this one way a reader may meet it between its two
/// states.
void replaceFile(const QString& path, const QByteArray& bytes, const QString& like = {});

/// Makes a folder in one that is there, with the rights of the folder `like`, where one is named. Raises 75
/// when the name is taken or the folder above can't be written to, 76 when that isn't there or the name is
/// too long, 61, 70, 57 or 68 as replaceFile() does.
void makeFolder(const QString& path, const QString& like = {});

/// Removes the temporary files of killed writers from the folder: those of this machine at once, others when
/// they are older than ten minutes by the folder's own clock. Files that can't be removed are left.
void sweepLeftovers(const QString& folder);
