// Unpacking an archive that lies beside the program.
#pragma once

#include <QString>

#include <atomic>

inline constexpr int mostInArchive = 10'000;            // files and folders
inline constexpr qint64 mostUnpacked = qint64(1) << 30; // bytes

/// Unpacks a RAR archive into a folder. A file takes the place of one of its name at one stroke, and can be
/// run if the archive says so.
///
/// The whole archive is read once before anything is written: links, names that lead out of the folder, that
/// can't be shown or that differ in case only, wrong sizes and checksums and too much of anything leave the
/// folder as it was. Files in folders come first, those at the top last. So what is started, which lies at
/// the top, is only there when all that it uses is there too, also after the program was killed.
///
/// After an error, or once `stop` is true, the new files are removed again, unless they have replaced others.
/// Raises 53 when there is no archive, 75 with a description when it is refused, and what placeFile() raises.
void unpackArchive(const QString& archive, const QString& folder, const std::atomic<bool>& stop);
