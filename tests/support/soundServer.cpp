#include "support/soundServer.h"

#include <gtest/gtest.h>

#include <QLocalSocket>

#include <QTest>
#include <csignal>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

bool accepts(const QString& socket)
{
    QLocalSocket connection;
    connection.connectToServer(socket);
    return connection.waitForConnected(100);
}

} // namespace

SoundServer::SoundServer()
{
    const QString socket = folder.filePath(u"native"_s);
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("HOME", folder.path().toLocal8Bit());
    qputenv("PULSE_COOKIE", folder.filePath(u"cookie"_s).toLocal8Bit());
    server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server.setChildProcessModifier(
        [] { prctl(PR_SET_PDEATHSIG, SIGKILL); }); // also ends when the test crashes
    server.start(u"pulseaudio"_s, {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s,
                                   u"--use-pid-file=no"_s, u"--disable-shm=yes"_s, u"--log-level=error"_s,
                                   u"--load=module-native-protocol-unix auth-anonymous=1 socket="_s + socket,
                                   u"--load=module-null-sink sink_name=speaker norewinds=1"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return accepts(socket); }))
        << "no sound server; is pulseaudio installed?";

    qputenv("PULSE_SERVER", "unix:" + socket.toLocal8Bit());
    ear.start(u"parecord"_s, {u"-d"_s, u"speaker.monitor"_s, u"--raw"_s, u"--format=s16le"_s,
                              u"--rate=44100"_s, u"--channels=1"_s, u"--latency-msec=20"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return ear.bytesAvailable() > 0; }))
        << "nothing is heard, not even silence";
    heard();
}

SoundServer::~SoundServer()
{
    for (QProcess* process : {&ear, &server}) {
        process->terminate();
        process->waitForFinished();
    }
}

void SoundServer::kill()
{
    server.kill();
    server.waitForFinished();
}

std::vector<qint16> SoundServer::heard()
{
    const QByteArray bytes = ear.read(ear.bytesAvailable() / 2 * 2);
    std::vector<qint16> samples(size_t(bytes.size() / 2));
    if (!samples.empty())
        memcpy(samples.data(), bytes.constData(), samples.size() * 2);
    return samples;
}
