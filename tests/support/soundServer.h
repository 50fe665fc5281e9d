// A private sound server whose output the test records.
//
// Qt asks for the sound server once in a process; tests with a server, without one and with one that dies
// each need a process of their own, as ctest gives them.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <vector>

class SoundServer {
public:
    /// Starts the server, makes this process use it and starts recording.
    SoundServer();
    ~SoundServer();

    /// Kills the server.
    void kill();

    /// The output since the last call: 44100 samples a second, -32768..32767.
    std::vector<qint16> heard();

private:
    QTemporaryDir folder;
    QProcess server;
    QProcess ear;
};
