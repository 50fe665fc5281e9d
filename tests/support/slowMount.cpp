#include "support/slowMount.h"

#include <QFileInfo>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int startLimit = 10000; // milliseconds
constexpr int stopLimit = 5000;

QString whyNot()
{
    if (!QFileInfo::exists(QStringLiteral(SLOW_FOLDER)))
        return u"the slow folder was not built: libfuse3-dev is missing"_s;
    const QFileInfo device(u"/dev/fuse"_s);
    if (!device.isReadable() || !device.isWritable())
        return u"/dev/fuse can't be used on this machine"_s;
    return {};
}

} // namespace

SlowMount::SlowMount(int delayMs, const QString& source)
    : problem(whyNot())
{
    if (!problem.isEmpty())
        return;
    server.start(QStringLiteral(SLOW_FOLDER), {QString::number(delayMs), source, place.path()});
    if (server.waitForReadyRead(startLimit))
        mounted = place.path();
    else
        problem = u"the slow folder could not be mounted: "_s +
                  QString::fromLocal8Bit(server.readAllStandardError());
}

void SlowMount::hold()
{
    ::kill(pid_t(server.processId()), SIGUSR1);
    held = true;
}

void SlowMount::release()
{
    if (held)
        ::kill(pid_t(server.processId()), SIGUSR2);
    held = false;
}

SlowMount::~SlowMount()
{
    if (mounted.isEmpty())
        return;
    release();
    server.terminate(); // it unmounts cleanly
    if (!server.waitForFinished(stopLimit)) {
        QProcess::execute(u"fusermount3"_s, {u"-uz"_s, mounted});
        server.kill();
        server.waitForFinished(stopLimit);
    }
}
