// One program at a time looks at a file of a folder and replaces it.
#pragma once

#include <QString>

/// Keeps other programs that take this lock out of the folder while it exists: between looking at a file and
/// replacing it none of them can write. The system releases it when the process ends, even by a crash. Waits
/// for three seconds at most; then, and on a disk without such locks, work goes ahead unlocked. Don't take it
/// twice.
class FolderLock {
public:
    explicit FolderLock(const QString& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    int descriptor;
};
