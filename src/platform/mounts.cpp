#include "platform/mounts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

enum DriveKind { otherDrive = 0, removableDrive = 2, fixedDrive = 3, networkDrive = 4, opticalDrive = 5 };

constexpr int mostDrives = 8;

const QSet<QByteArray> networkSystems = {
    "cifs", "smb3", "smbfs", "nfs",        "nfs4",          "ncpfs",       "9p",
    "afs",  "ceph", "davfs", "fuse.sshfs", "fuse.smbnetfs", "fuse.davfs2", "fuse.curlftpfs"};
const QSet<QByteArray> opticalSystems = {"iso9660", "udf"};

/// The table writes white space as a backslash and three octal digits.
QString unescaped(const QByteArray& word)
{
    QByteArray plain;
    for (qsizetype i = 0; i < word.size(); ++i) {
        bool isCode = false;
        const int code = word[i] == '\\' ? word.mid(i + 1, 3).toInt(&isCode, 8) : 0;
        plain += isCode ? char(code) : word[i];
        if (isCode)
            i += 3;
    }
    return QFile::decodeName(plain);
}

QString driveName(const QString& mountPoint)
{
    return u'(' + mountPoint.section(u'/', -1, -1, QString::SectionSkipEmpty).toUpper() + u')';
}

bool isRemovableBlockDevice(const QString& device)
{
    if (!device.startsWith(u"/dev/"_s))
        return false;
    // A partition's folder lies inside that of its disk, which says whether it is removable.
    const QString folder =
        QFileInfo(u"/sys/class/block/"_s + QFileInfo(device).fileName()).canonicalFilePath();
    for (const QString& disk : {folder, QFileInfo(folder).path()}) {
        QFile flag(disk + u"/removable"_s);
        if (!folder.isEmpty() && flag.open(QIODevice::ReadOnly))
            return flag.read(1) == "1";
    }
    return false;
}

} // namespace

QList<Volume> drives(const QByteArray& mountTable,
                     const std::function<bool(const QString& device)>& isRemovable)
{
    QList<Volume> found = {{u"(HOME)"_s, QDir::homePath(), fixedDrive},
                           {u"(COMPUTER)"_s, QDir::rootPath(), fixedDrive}};
    for (const QByteArray& line : mountTable.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() < 3 || found.size() == mostDrives)
            continue;
        const QString device = unescaped(words[0]);
        const QString place = unescaped(words[1]);
        const bool pluggedIn = place.startsWith(u"/media/"_s) || place.startsWith(u"/run/media/"_s);
        int kind = otherDrive;
        if (networkSystems.contains(words[2]))
            kind = networkDrive;
        else if (opticalSystems.contains(words[2]))
            kind = opticalDrive;
        else if (pluggedIn || (device.startsWith(u'/') && isRemovable(device)))
            kind = removableDrive;
        if (kind != otherDrive && place != QDir::rootPath())
            found.append({driveName(place), place, kind});
    }
    return found;
}

QList<Volume> drivesOfComputer()
{
    QFile table(u"/proc/self/mounts"_s);
    return drives(table.open(QIODevice::ReadOnly) ? table.readAll() : QByteArray(), isRemovableBlockDevice);
}
