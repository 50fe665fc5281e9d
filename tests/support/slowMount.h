// A slow folder for a test or a benchmark, mounted during the object's lifetime.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

class SlowMount {
public:
    /// Shows `source` at path(), each call to it delayed by `delayMs`. Where this machine can't do that,
    /// path() is empty and reason() says why; the test then must skip with that reason.
    SlowMount(int delayMs, const QString& source);
    ~SlowMount();
    SlowMount(const SlowMount&) = delete;
    SlowMount& operator=(const SlowMount&) = delete;

    /// Stops answering calls until release(): access to the folder blocks.
    void hold();
    void release();

    QString path() const { return mounted; }
    QString reason() const { return problem; }

private:
    QTemporaryDir place;
    QProcess server;
    QString mounted;
    bool held = false;
    QString problem;
};
