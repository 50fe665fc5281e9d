#include "store/keptVersions.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/wholeFile.h"
#include "store/paths.h"

#include <QDateTime>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

QString keptFolder() { return joinPath(session.dbPath, u".kept"_s); }

QFileInfoList entriesOf(const QString& folder, QDir::Filters kind)
{
    return QDir(folder).entryInfoList(kind | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

/// All kept files, the oldest first.
QFileInfoList keptFiles()
{
    QFileInfoList files;
    for (const QFileInfo& moment : entriesOf(keptFolder(), QDir::Dirs))
        files += entriesOf(moment.filePath(), QDir::Files);
    return files;
}

qint64 bytesOf(const QFileInfoList& files)
{
    qint64 bytes = 0;
    for (const QFileInfo& file : files)
        bytes += file.size();
    return bytes;
}

/// Removes the oldest files until these fit. Files that can't be removed are left.
void makeRoomFor(const QFileInfoList& coming)
{
    QFileInfoList kept = keptFiles();
    qint64 bytes = bytesOf(kept) + bytesOf(coming);
    while (!kept.isEmpty() && (bytes > mostKeptBytes || kept.size() + coming.size() > mostKeptFiles)) {
        const QFileInfo oldest = kept.takeFirst();
        bytes -= oldest.size();
        QFile::remove(oldest.filePath());
        QDir().rmdir(oldest.path()); // succeeds only for the last file of its moment
    }
}

/// Makes a folder; false when the name is taken, perhaps by another workstation a moment ago.
bool addFolder(const QString& path, const QString& like)
{
    try {
        makeFolder(path, like);
        return true;
    } catch (const RuntimeError&) {
        if (QFileInfo::exists(path))
            return false;
        throw;
    }
}

/// Makes a new folder for this moment.
QString makeMoment()
{
    addFolder(keptFolder(), session.dbPath);
    const QString now = joinPath(keptFolder(), desktop.now().toString(u"yyyy-MM-dd HH.mm.ss"_s));
    QString moment = now;
    for (int n = 2; !addFolder(moment, keptFolder()); ++n)
        moment = now + u' ' + QString::number(n).rightJustified(2, u'0');
    return moment;
}

QString nameIn(const QString& folder, const QFileInfo& file) { return joinPath(folder, file.fileName()); }

} // namespace

void keepVersions(const QStringList& paths)
{
    if (paths.isEmpty())
        return;
    const QFileInfoList files(paths.begin(), paths.end());
    if (bytesOf(files) > mostKeptBytes)
        throw RuntimeError(outOfMemory);
    makeRoomFor(files);
    const QString moment = makeMoment();
    for (const QFileInfo& file : files)
        replaceFile(nameIn(moment, file), readWholeFile(file.filePath(), mostKeptBytes), file.filePath());
}

void moveToKept(const QStringList& paths)
{
    QFileInfoList files;
    for (const QString& path : paths) {
        if (const QFileInfo file(path); file.exists())
            files.append(file);
    }
    QString moment;
    if (!files.isEmpty() && bytesOf(files) <= mostKeptBytes)
        ignoringErrors({[&] { makeRoomFor(files); }, [&] { moment = makeMoment(); }});
    for (const QFileInfo& file : files) {
        if (moment.isEmpty() || !QFile::rename(file.filePath(), nameIn(moment, file)))
            QFile::remove(file.filePath());
    }
}
