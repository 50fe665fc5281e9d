// Disks that know other rights than ours: one of a memory stick, one of a school's server, one without access
// lists.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// A disk of that kind for a test, there as long as the object is. Where this machine can't have it path() is
/// empty, and reason() tells what is missing: the test has to say so.
class OtherDisk {
public:
    enum Kind { fat, share, withoutLists };
    explicit OtherDisk(Kind kind);
    ~OtherDisk();
    OtherDisk(const OtherDisk&) = delete;
    OtherDisk& operator=(const OtherDisk&) = delete;

    QString path() const { return place; }
    QString reason() const { return problem; }

private:
    void mountFat();
    void mountShare();
    void mountWithoutLists();
    QString in(const char* name) const { return scratch.filePath(QLatin1String(name)); }
    /// Starts a program and waits until the folder is another disk's.
    bool startMounting(const QString& program, const QStringList& arguments);
    bool isMounted() const;

    QTemporaryDir scratch;
    QProcess server;
    QProcess mounting;
    QString place;
    QString problem;
};
