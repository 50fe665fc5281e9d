// Who may do what with a file or a folder: its owner, its group, its mode and its access list.
#pragma once

#include <QString>

#include <optional>
#include <sys/types.h>
#include <vector>

/// One line of an access list, as the system keeps it.
struct AccessEntry {
    quint16 tag;
    quint16 rights; // 4 read, 2 write, 1 run or enter
    quint32 id;     // of a user or group that the entry names
};

struct FileRights {
    uid_t owner = 0;
    gid_t group = 0;
    mode_t mode = 0;
    std::vector<AccessEntry> list; // empty where the mode is all there is
};

/// Those of a file or folder, behind links; nothing when it isn't there or can't be looked at.
std::optional<FileRights> rightsOf(const QString& path);

/// Those of the file, but its owner can read and write it in any case.
std::optional<FileRights> rightsForNewFile(const QString& like);

/// Gives these rights to a file or folder that this user has just made. Where they can't have the same owner
/// or group, entries of an access list let the former ones do what they could. False when the disk allows
/// less than that, so that somebody might be locked out.
bool giveRights(int descriptor, const FileRights& rights);
