#include "support/smallDisk.h"

#include "support/files.h"

#include <QDir>

#include <sys/mount.h>
#include <sys/vfs.h>

using namespace Qt::StringLiterals;

SmallDisk::SmallDisk(int bytes)
    : place(inTestFolder(u"disk"_s))
{
    QDir().mkpath(place);
    const QByteArray size = "size=" + QByteArray::number(bytes);
    mounted = mount("tallymoor-test", place.toUtf8().constData(), "tmpfs", 0, size.constData()) == 0;
}

SmallDisk::~SmallDisk()
{
    if (mounted)
        umount(place.toUtf8().constData());
}

void SmallDisk::leaveFree(qint64 bytes) const
{
    QFile filler(place + u"/filler"_s);
    filler.remove();
    struct statfs disk = {};
    ASSERT_EQ(statfs(place.toUtf8().constData(), &disk), 0);
    const qint64 room = qint64(disk.f_bfree) * qint64(disk.f_bsize) - bytes;
    putFile(filler.fileName(), QByteArray(std::max<qint64>(room, 0), 'f'));
}

void SmallDisk::writeProtect() const
{
    ASSERT_EQ(mount(nullptr, place.toUtf8().constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
}
