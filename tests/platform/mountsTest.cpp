#include "platform/mounts.h"

#include "support/freshStart.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

QStringList told(const QByteArray& table, int from = 2)
{
    QStringList lines;
    for (const Volume& volume : drives(table, [](const QString& device) { return device == "/dev/sdb1"_L1; }))
        lines.append(u"%1 %2 %3"_s.arg(volume.name, volume.root).arg(volume.kind));
    return lines.mid(from);
}

} // namespace

TEST(Mounts, OnlyMediaThatAPupilMayWantAreDrives)
{
    EXPECT_THAT(told("/dev/sda2 / ext4 rw 0 0\n"
                     "proc /proc proc rw 0 0\n"
                     "/dev/sda1 /boot/efi vfat rw 0 0\n"
                     "/dev/sdb1 /mnt/stick vfat rw 0 0\n"
                     "/dev/sdc1 /media/anna/RED\\040STICK vfat rw 0 0\n"
                     "//server/class /srv/class3 cifs rw 0 0\n"
                     "smbnetfs /home/anna/Net fuse.smbnetfs rw 0 0\n"
                     "/dev/sr0 /cdrom iso9660 ro 0 0\n"
                     "broken line\n"),
                ElementsAre(u"(STICK) /mnt/stick 2"_s, u"(RED STICK) /media/anna/RED STICK 2"_s,
                            u"(CLASS3) /srv/class3 4"_s, u"(NET) /home/anna/Net 4"_s, u"(CDROM) /cdrom 5"_s));
}

TEST(Mounts, EightDrivesAreTheMost)
{
    QByteArray table;
    for (int i = 0; i < 9; ++i)
        table += "//server/share /srv/s" + QByteArray::number(i) + " cifs rw 0 0\n";
    EXPECT_EQ(told(table, 0).size(), 8);
}
