// A small disk that a test can fill or write-protect.
#pragma once

#include <QString>

class SmallDisk {
public:
    /// Mounts a memory disk of that many bytes at path(). This needs root; see isThere().
    explicit SmallDisk(int bytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isThere() const { return mounted; }
    QString path() const { return place; }

    /// Fills the disk until at most that many bytes are free.
    void leaveFree(qint64 bytes) const;
    void writeProtect() const;

private:
    QString place;
    bool mounted = false;
};
