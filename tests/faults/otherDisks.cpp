#include "faults/otherDisks.h"

#include "support/files.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int startLimit = 15000; // milliseconds
constexpr int pause = 20;
constexpr qint64 fatBytes = 4 << 20;

constexpr auto serverSettings = R"([global]
interfaces = %2/8
bind interfaces only = yes
private dir = %1
lock directory = %1
state directory = %1
cache directory = %1
pid directory = %1
ncalrpc dir = %1/rpc
log file = %1/log
map to guest = Bad User
guest account = root
disable netbios = yes
load printers = no
[class]
path = %1/shared
guest ok = yes
read only = no
)";

/// A loopback address of this process's own, for the port is everybody's.
QString serverAddress() { return u"127.7.%1.%2"_s.arg(getpid() / 250 % 250).arg(getpid() % 250 + 1); }

bool waitFor(const std::function<bool()>& holds)
{
    for (const QDeadlineTimer end(startLimit); !end.hasExpired(); QThread::msleep(pause)) {
        if (holds())
            return true;
    }
    return false;
}

} // namespace

OtherDisk::OtherDisk(Kind kind)
    : place(in("disk"))
{
    QFile::setPermissions(scratch.path(), QFileDevice::Permissions(0x7755)); // others walk through it
    QDir().mkdir(place);
    if (geteuid() != 0)
        problem = u"only root can mount it"_s;
    else if (kind == fat)
        mountFat();
    else if (kind == share)
        mountShare();
    else
        mountWithoutLists();
    if (!problem.isEmpty())
        place.clear();
}

OtherDisk::~OtherDisk()
{
    umount2(in("disk").toUtf8().constData(), MNT_DETACH);
    for (QProcess* process : {&mounting, &server}) {
        process->terminate();
        process->waitForFinished();
    }
}

void OtherDisk::mountFat()
{
    QFile image(in("image"));
    const bool made = image.open(QIODevice::WriteOnly) && image.resize(fatBytes) &&
                      QProcess::execute(u"mkfs.vfat"_s, {image.fileName()}) == 0;
    if (!made || !startMounting(u"fusefat"_s, {in("image"), place, u"-f"_s, u"-o"_s, u"rw+,allow_other"_s}))
        problem = u"no FAT disk: it takes mkfs.vfat, fusefat and /dev/fuse"_s;
}

void OtherDisk::mountShare()
{
    for (const char* folder : {"shared", "home", "home/.smb"})
        QDir().mkdir(in(folder));
    putFile(in("smb.conf"),
            QString::fromLatin1(serverSettings).arg(scratch.path(), serverAddress()).toUtf8());
    putFile(in("home/.smb/smb.conf"), "[global]\nclient min protocol = SMB2\nname resolve order = host\n");
    putFile(in("home/.smb/smbnetfs.host"), "host " + serverAddress().toUtf8() + " visible=true\n");
    putFile(in("home/.smb/smbnetfs.conf"), "");
    const auto owners = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    QFile::setPermissions(in("home/.smb"), owners | QFileDevice::ExeOwner);
    for (const char* file : {"home/.smb/smb.conf", "home/.smb/smbnetfs.host", "home/.smb/smbnetfs.conf"})
        QFile::setPermissions(in(file), owners);
    server.setChildProcessModifier([] { ::setpgid(0, 0); }); // smbd ends with its whole group of processes
    server.start(u"smbd"_s, {u"-F"_s, u"--no-process-group"_s, u"-s"_s, in("smb.conf")});
    QProcessEnvironment home = QProcessEnvironment::systemEnvironment();
    home.insert(u"HOME"_s, in("home"));
    mounting.setProcessEnvironment(home);
    const bool mounted = startMounting(u"smbnetfs"_s, {place, u"-f"_s, u"-o"_s, u"allow_other"_s});
    place += u"/%1/class"_s.arg(serverAddress());
    if (!mounted || !waitFor([this] { return QDir(place).mkdir(u"ready"_s); }))
        problem = u"no share: it takes smbd, smbnetfs and /dev/fuse"_s;
}

void OtherDisk::mountWithoutLists()
{
    if (mount("tallymoor-test", place.toUtf8().constData(), "ramfs", 0, nullptr) != 0)
        problem = u"no disk without access lists: this system has no ramfs"_s;
}

bool OtherDisk::startMounting(const QString& program, const QStringList& arguments)
{
    mounting.setStandardOutputFile(QProcess::nullDevice());
    mounting.setStandardErrorFile(QProcess::nullDevice());
    mounting.start(program, arguments);
    return mounting.waitForStarted() && waitFor([this] { return isMounted(); });
}

bool OtherDisk::isMounted() const
{
    struct stat above = {};
    struct stat here = {};
    return stat(scratch.path().toUtf8().constData(), &above) == 0 &&
           stat(place.toUtf8().constData(), &here) == 0 && above.st_dev != here.st_dev;
}
