// The owner, group, mode and access list of a file or folder, and how to give them to another one.
#pragma once

#include <QString>

#include <optional>
#include <sys/types.h>
#include <vector>

/// One line of an access list, as the system keeps it.
struct AccessEntry {
    quint16 tag;
    quint16 rights; // 4 read, 2 write, 1 execute or enter
    quint32 id;     // the user or group of an entry for one
};

struct FileRights {
    uid_t owner = 0;
    gid_t group = 0;
    mode_t mode = 0;
    std::vector<AccessEntry> list; // empty when there is only a mode
};

/// Reads the rights of a file or folder; follows links. Empty when it doesn't exist or can't be examined.
std::optional<FileRights> rightsOf(const QString& path);

/// The rights of the file, with reading and writing added for its owner.
std::optional<FileRights> rightsForNewFile(const QString& like);

/// Gives these rights to a file or folder that this user has just made. Where its owner or group can't be
/// changed, entries of an access list grant the missing owner or group the same rights. False when the disk
/// refuses that too: then a user might be locked out.
bool giveRights(int descriptor, const FileRights& rights);
