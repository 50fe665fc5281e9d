#include "support/slowMount.h"

#include <QFileInfo>

namespace {

constexpr int startLimit = 10000; // milliseconds
constexpr int stopLimit = 5000;

QString whyNot()
{
    if (!QFileInfo::exists(QStringLiteral(SLOW_FOLDER)))
        return QStringLiteral("the slow folder was not built: libfuse3-dev is missing");
    const QFileInfo device(QStringLiteral("/dev/fuse"));
    if (!device.isReadable() || !device.isWritable())
        return QStringLiteral("/dev/fuse can't be used on this machine");
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
        problem = QStringLiteral("the slow folder could not be mounted: ") +
                  QString::fromLocal8Bit(server.readAllStandardError());
}

SlowMount::~SlowMount()
{
    if (mounted.isEmpty())
        return;
    server.terminate(); // it takes the mount away in order
    if (!server.waitForFinished(stopLimit)) {
        QProcess::execute(QStringLiteral("fusermount3"), {QStringLiteral("-uz"), mounted});
        server.kill();
        server.waitForFinished(stopLimit);
    }
}
