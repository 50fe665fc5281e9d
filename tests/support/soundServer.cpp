#include "support/soundServer.h"

#include <gtest/gtest.h>

#include <QLocalSocket>

#include <QTest>
#include <csignal>
#include <sys/prctl.h>

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
    const QString socket = folder.filePath(QStringLiteral("native"));
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("HOME", folder.path().toLocal8Bit());
    qputenv("PULSE_COOKIE", folder.filePath(QStringLiteral("cookie")).toLocal8Bit());
    server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); }); // ends with a test that crashes
    server.start(QStringLiteral("pulseaudio"),
                 {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                  QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--use-pid-file=no"),
                  QStringLiteral("--disable-shm=yes"), QStringLiteral("--log-level=error"),
                  QStringLiteral("--load=module-native-protocol-unix auth-anonymous=1 socket=") + socket,
                  QStringLiteral("--load=module-null-sink sink_name=speaker norewinds=1")});
    EXPECT_TRUE(QTest::qWaitFor([&] { return accepts(socket); }))
        << "no sound server; is pulseaudio installed?";

    qputenv("PULSE_SERVER", "unix:" + socket.toLocal8Bit());
    ear.start(QStringLiteral("parecord"),
              {QStringLiteral("-d"), QStringLiteral("speaker.monitor"), QStringLiteral("--raw"),
               QStringLiteral("--format=s16le"), QStringLiteral("--rate=44100"),
               QStringLiteral("--channels=1"), QStringLiteral("--latency-msec=20")});
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
