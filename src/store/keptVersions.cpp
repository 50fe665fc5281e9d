#include "store/keptVersions.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/folderLock.h"
#include "platform/wholeFile.h"
#include "store/paths.h"

#include <QDateTime>
#include <QDir>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int momentTries = 20;

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

/// Runs `fill` with a new folder for this moment. Another program that makes room at the same time takes a
/// folder for the oldest and removes it while it is empty, where the clocks of two machines differ or the
/// name was free again: then `fill` starts afresh in another folder.
void fillMoment(const std::function<void(const QString& moment)>& fill)
{
    for (int attempt = 1;; ++attempt) {
        try {
            return fill(makeMoment());
        } catch (const RuntimeError& error) {
            if (error.number() != pathNotFound || attempt == momentTries)
                throw;
        }
    }
}

QString nameIn(const QString& folder, const QFileInfo& file) { return joinPath(folder, file.fileName()); }

/// Of a file that has just been deleted by another program there is nothing to keep.
void keepCopy(const QFileInfo& file, const QString& moment)
{
    try {
        replaceFile(nameIn(moment, file), readWholeFile(file.filePath(), mostKeptBytes), file.filePath());
    } catch (const RuntimeError& error) {
        if (error.number() != fileNotFound)
            throw;
    }
}

/// Takes out of `files` those that it could move. Raises 76 when the moment's folder has gone.
void moveTo(const QString& moment, QFileInfoList& files)
{
    files.removeIf(
        [&moment](const QFileInfo& file) { return QFile::rename(file.filePath(), nameIn(moment, file)); });
    if (!files.isEmpty() && !QFileInfo::exists(moment))
        throw RuntimeError(pathNotFound);
}

} // namespace

void keepVersions(const QStringList& paths)
{
    const QFileInfoList files(paths.begin(), paths.end());
    if (files.isEmpty())
        return;
    if (bytesOf(files) > mostKeptBytes)
        throw RuntimeError(outOfMemory);
    makeRoomFor(files);
    fillMoment([&files](const QString& moment) {
        for (const QFileInfo& file : files)
            keepCopy(file, moment);
    });
}

void moveToKept(const QStringList& paths)
{
    const FolderLock lock(session.dbPath);
    QFileInfoList files;
    for (const QString& path : paths) {
        if (const QFileInfo file(path); file.exists())
            files.append(file);
    }
    if (!files.isEmpty() && bytesOf(files) <= mostKeptBytes)
        ignoringErrors({[&] { makeRoomFor(files); },
                        [&] { fillMoment([&](const QString& moment) { moveTo(moment, files); }); }});
    for (const QFileInfo& file : files)
        QFile::remove(file.filePath());
}
