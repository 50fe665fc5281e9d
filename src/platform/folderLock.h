// A lock on a folder: one program at a time compares its files and replaces them.
#pragma once

#include <QString>

/// Keeps other programs that take this lock out of the folder while it exists: between looking at a file and
/// replacing it none of them can write. The system releases it when the process ends, even by a crash. Waits
/// for three seconds at most; then, and on a disk without such locks, it goes on without the lock. Not
/// recursive.
class FolderLock {
public:
    explicit FolderLock(const QString& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    int descriptor;
};
