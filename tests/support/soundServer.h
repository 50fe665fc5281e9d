// A private sound server with a loudspeaker that the test hears.
//
// Qt asks for the sound server once in a process; tests with a server, without one and with one that dies
// each need a process of their own, as ctest gives them.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <vector>

class SoundServer {
public:
    /// Starts the server, points this process at it and begins to listen.
    SoundServer();
    ~SoundServer();

    /// Ends the server as a crash would.
    void kill();

    /// What the loudspeaker gave since the last call, 44100 samples a second, -32768..32767.
    std::vector<qint16> heard();

private:
    QTemporaryDir folder;
    QProcess server;
    QProcess ear;
};
