// A slow folder for a test or a benchmark, there as long as the object is.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

class SlowMount {
public:
    /// Shows `source` at path(), each call to it taking `delayMs`. Where this machine can't do that, path()
    /// is empty and reason() tells why: the test has to skip, saying so.
    SlowMount(int delayMs, const QString& source);
    ~SlowMount();
    SlowMount(const SlowMount&) = delete;
    SlowMount& operator=(const SlowMount&) = delete;

    QString path() const { return mounted; }
    QString reason() const { return problem; }

private:
    QTemporaryDir place;
    QProcess server;
    QString mounted;
    QString problem;
};
