// A small disk of its own, so that a test can fill it or write-protect it.
#pragma once

#include <QString>

class SmallDisk {
public:
    /// Mounts a disk of so many bytes, in the memory, at path(). Only root can; see isThere().
    explicit SmallDisk(int bytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isThere() const { return mounted; }
    QString path() const { return place; }

    /// Fills it so that no more than so many bytes are left.
    void leaveFree(qint64 bytes) const;
    void writeProtect() const;

private:
    QString place;
    bool mounted = false;
};
