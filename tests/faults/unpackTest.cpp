// Unpacking on a full disk, and killed in the middle: what is at the top of the archive is there only when
// all the rest is.
#include "faults/children.h"
#include "faults/writers.h"
#include "platform/archive.h"
#include "support/files.h"
#include "support/rar.h"
#include "support/smallDisk.h"

#include <QDir>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int files = 24;
constexpr int page = 4096;
const QByteArray content(3 * page, 'x');

QByteArray startedFirst()
{
    QList<Packed> packed = {{"Start.exe", content, 0100755}};
    for (int number = 0; number < files; ++number)
        packed.append({"parts/" + QByteArray::number(number), content});
    return rarOf(packed);
}

/// Whether what is there is whole, and without the starter or complete.
bool isConsistent(const QString& folder)
{
    const QDir parts(folder + u"/parts"_s);
    const QStringList names = parts.entryList(QDir::Files);
    for (const QString& name : names) {
        if (bytesOf(parts.filePath(name)) != content)
            return false;
    }
    return !QFile::exists(folder + u"/Start.exe"_s) ||
           (names.size() == files && bytesOf(folder + u"/Start.exe"_s) == content);
}

} // namespace

using UnpackingFaults = Fresh;

TEST_F(UnpackingFaults, AFullDiskIsLeftAsItWas)
{
    const QString archive = inTestFolder(u"Videos.rar"_s);
    putFile(archive, startedFirst());
    for (const int room : {0, page, 30 * page, (3 * files + 1) * page}) {
        const SmallDisk disk((3 * files + 40) * page);
        if (!disk.isThere())
            GTEST_SKIP() << "only root can mount a small disk";
        disk.leaveFree(room);
        const QStringList before = QDir(disk.path()).entryList(QDir::AllEntries | QDir::Hidden);
        EXPECT_EQ(errorOf([&] { unpackArchive(archive, disk.path(), false); }), diskFull) << room;
        EXPECT_EQ(QDir(disk.path()).entryList(QDir::AllEntries | QDir::Hidden), before) << room;
        QFile::remove(disk.path() + u"/filler"_s);
        unpackArchive(archive, disk.path(), false);
        EXPECT_TRUE(QFile::exists(disk.path() + u"/Start.exe"_s) && isConsistent(disk.path())) << room;
    }
}

TEST_F(UnpackingFaults, AKilledOneHasNothingHalfAndTheNextIsWhole)
{
    const QString archive = inTestFolder(u"Videos.rar"_s);
    putFile(archive, startedFirst());
    int partly = 0;
    for (int round = 0; round < 40; ++round) {
        const QString folder = inTestFolder(QString::number(round));
        QDir().mkdir(folder);
        Child child([&] {
            tellParent();
            unpackArchive(archive, folder, false);
        });
        child.waitUntilTold();
        QThread::usleep(ulong(round) * 500);
        child.kill();
        EXPECT_TRUE(isConsistent(folder)) << round;
        partly += QFile::exists(folder + u"/parts"_s) && !QFile::exists(folder + u"/Start.exe"_s);
        unpackArchive(archive, folder, false);
        EXPECT_TRUE(QFile::exists(folder + u"/Start.exe"_s) && isConsistent(folder)) << round;
        EXPECT_TRUE(leftoversIn(folder).isEmpty() && leftoversIn(folder + u"/parts"_s).isEmpty()) << round;
    }
    EXPECT_GE(partly, 1);
}
