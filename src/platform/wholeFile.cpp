#include "platform/wholeFile.h"

#include "platform/errors.h"
#include "platform/fileRights.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QThread>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <linux/magic.h>
#include <optional>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A new file is called .tallymoor~MACHINE~PROCESS~COUNT until it takes its place: hidden from directory
// listings.
const QString leftoverPrefix = u".tallymoor~"_s;
constexpr int foreignLeftoverSeconds = 600;

// On a share, a reader on another machine can block a rename for a moment.
constexpr int renameTries = 10;
constexpr int missingTries = 5;
constexpr int pauseMs = 20;

[[noreturn]] void raiseFor(int systemError)
{
    constexpr struct {
        int systemError;
        int number;
    } known[] = {
        {ENOENT, fileNotFound},
        {ENOTDIR, pathNotFound},
        {ENAMETOOLONG, pathNotFound},
        {ESTALE, pathNotFound},
        {ENOSPC, diskFull},
        {EDQUOT, diskFull},
        {EFBIG, diskFull},
        {EROFS, permissionDenied},
        {EBUSY, permissionDenied},
        {ETXTBSY, permissionDenied},
        {EEXIST, permissionDenied},
        {EAGAIN, permissionDenied},
        {EACCES, pathAccessError},
        {EPERM, pathAccessError},
        {EISDIR, pathAccessError},
        {EOPNOTSUPP, pathAccessError},
        {ELOOP, pathAccessError},
        {ENXIO, deviceUnavailable},
        {ENODEV, deviceUnavailable},
        {ENOTCONN, deviceUnavailable},
        {EHOSTDOWN, deviceUnavailable},
        {ETIMEDOUT, deviceUnavailable},
        {ENOMEM, outOfMemory},
    };
    for (const auto& [error, number] : known) {
        if (error == systemError)
            throw RuntimeError(number);
    }
    throw RuntimeError(deviceError);
}

QByteArray systemName(const QString& path) { return QFile::encodeName(path); }

QString folderOf(const QString& path) { return QFileInfo(path).path(); }

/// An open file descriptor, closed by the destructor.
class OpenFile {
public:
    OpenFile(const QString& path, int flags, mode_t mode = 0)
        : descriptor(::open(systemName(path).constData(), flags | O_CLOEXEC, mode))
    {
        if (descriptor < 0)
            failure = errno;
    }
    ~OpenFile()
    {
        if (descriptor >= 0)
            ::close(descriptor);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// 0 when it was opened, otherwise errno.
    int error() const { return failure; }

    struct stat status() const
    {
        struct stat found = {};
        check(::fstat(descriptor, &found));
        return found;
    }

    QByteArray readAll(qint64 length) const
    {
        QByteArray bytes(length, Qt::Uninitialized);
        qint64 have = 0;
        while (have < length) {
            const ssize_t count = ::read(descriptor, bytes.data() + have, size_t(length - have));
            if (count < 0 && errno == EINTR)
                continue;
            check(count);
            if (count == 0)
                break; // the file was truncated meanwhile
            have += count;
        }
        bytes.truncate(have);
        return bytes;
    }

    void writeFromStart(const QByteArray& bytes) const
    {
        qint64 done = 0;
        while (done < bytes.size()) {
            const ssize_t count =
                ::pwrite(descriptor, bytes.constData() + done, size_t(bytes.size() - done), done);
            if (count < 0 && errno == EINTR)
                continue;
            check(count);
            done += count;
        }
    }

    /// Reserves room for so many bytes without changing the file's length, where the disk can.
    void reserve(qint64 length) const
    {
        if (length > 0 && ::fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, length) != 0 && errno != EOPNOTSUPP)
            raiseFor(errno);
    }

    void cutTo(qint64 length) const { check(::ftruncate(descriptor, length)); }
    bool takeRights(const FileRights& rights) const { return giveRights(descriptor, rights); }
    void flushToDisk() const { check(::fdatasync(descriptor)); }
    void flushWholeDisk() const { check(::syncfs(descriptor)); }

    /// Closes the file and returns the error, if any: network disks report a lack of space only here.
    void close()
    {
        const int closing = std::exchange(descriptor, -1);
        check(::close(closing));
    }

private:
    static void check(ssize_t result)
    {
        if (result < 0)
            raiseFor(errno);
    }

    int descriptor;
    int failure = 0;
};

/// Identifies this running system: the same for all processes that can see each other's ids, different for
/// all others, even where the machines of a classroom are copies with the same name.
QString machineName()
{
    static const QString name = [] {
        QFile boot(u"/proc/sys/kernel/random/boot_id"_s);
        QCryptographicHash hash(QCryptographicHash::Sha1);
        if (boot.open(QIODevice::ReadOnly))
            hash.addData(boot.readAll());
        hash.addData(QFile::symLinkTarget(u"/proc/self/ns/pid"_s).toUtf8());
        hash.addData(QSysInfo::machineHostName().toUtf8());
        return QString::fromLatin1(hash.result().toHex().first(16));
    }();
    return name;
}

QString nameForNewFile()
{
    static std::atomic<int> count = 0; // files are written on several threads
    return leftoverPrefix + machineName() + u'~' + QString::number(::getpid()) + u'~' +
           QString::number(++count);
}

/// A new file beside its target. The destructor removes it unless it has replaced the target.
class NewFile {
public:
    explicit NewFile(const QString& folder, mode_t mode = 0666)
        : path(folder + u'/' + nameForNewFile())
        , file(path, O_WRONLY | O_CREAT | O_EXCL, mode & 0777)
    {
    }
    ~NewFile()
    {
        if (!placed && error() == 0)
            ::unlink(systemName(path).constData());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    int error() const { return file.error(); }
    struct stat status() const { return file.status(); }
    bool takeRights(const FileRights& rights) const { return file.takeRights(rights); }

    void fill(const QByteArray& bytes, Flush flush = Flush::now)
    {
        file.writeFromStart(bytes);
        if (flush == Flush::now)
            file.flushToDisk();
        file.close();
    }

    /// 0 when it has replaced the target, otherwise errno.
    int takePlaceOf(const QString& target)
    {
        for (int attempt = 1;; ++attempt) {
            placed = ::rename(systemName(path).constData(), systemName(target).constData()) == 0;
            const int refusal = placed ? 0 : errno;
            const bool mayPass =
                refusal == EACCES || refusal == EBUSY || refusal == ETXTBSY || refusal == EEXIST;
            if (!mayPass || attempt == renameTries)
                return refusal;
            QThread::msleep(pauseMs);
        }
    }

private:
    QString path;
    OpenFile file;
    bool placed = false;
};

/// Overwrites a file in place: for a writable file in a folder that isn't writable.
void overwriteInPlace(const QString& path, const QByteArray& bytes)
{
    const OpenFile file(path, O_RDWR);
    if (file.error())
        raiseFor(file.error());
    const QByteArray former = file.readAll(file.status().st_size);
    file.reserve(bytes.size());
    try {
        file.writeFromStart(bytes);
        file.cutTo(bytes.size());
        file.flushToDisk();
    } catch (const RuntimeError&) {
        file.writeFromStart(former);
        file.cutTo(former.size());
        throw;
    }
}

/// Writes a new file beside the target, gives it these rights and renames it over the target. Rights that
/// can't be set are an error only where a file is replaced. Returns errno of the step that the system
/// refused, 0 for none; raises when the bytes can't be written.
int putNewFile(const QString& target, const QByteArray& bytes, const std::optional<FileRights>& rights,
               bool replaces)
{
    NewFile made(folderOf(target), rights ? rights->mode & 0666 : 0666);
    if (made.error())
        return made.error();
    const bool given = !rights || made.takeRights(*rights);
    if (replaces && !given)
        return EPERM;
    made.fill(bytes);
    return made.takePlaceOf(target);
}

bool isRunning(pid_t process) { return ::kill(process, 0) == 0 || errno == EPERM; }

/// The time by the clock of the folder's system (on a share, the server's); 0 where nothing can be written.
time_t clockOf(const QString& folder)
{
    const NewFile probe(folder);
    return probe.error() ? 0 : probe.status().st_mtime;
}

/// True on shares mounted by a desktop service: these delete the target before they rename a file over it,
/// so that for a moment it doesn't exist.
bool mayBeBetweenTwoFiles(const QString& path)
{
    struct statfs disk = {};
    return ::statfs(systemName(folderOf(path)).constData(), &disk) == 0 && disk.f_type == FUSE_SUPER_MAGIC;
}

/// Opens without blocking, so that a pipe with a card's name can't hang the program.
void openForReading(std::optional<OpenFile>& file, const QString& path)
{
    for (int attempt = 1;; ++attempt) {
        file.emplace(path, O_RDONLY | O_NONBLOCK);
        if (file->error() != ENOENT || attempt == missingTries || !mayBeBetweenTwoFiles(path))
            return;
        QThread::msleep(pauseMs);
    }
}

} // namespace

QByteArray readWholeFile(const QString& path, qint64 limit)
{
    std::optional<OpenFile> file;
    openForReading(file, path);
    if (file->error() == ENOENT && !QFileInfo(folderOf(path)).isDir())
        raiseFor(ENOTDIR);
    if (file->error())
        raiseFor(file->error());
    const struct stat status = file->status();
    if (!S_ISREG(status.st_mode))
        throw RuntimeError(pathAccessError);
    if (status.st_size > limit)
        throw RuntimeError(outOfMemory);
    return file->readAll(status.st_size);
}

void replaceFile(const QString& path, const QByteArray& bytes, const QString& like)
{
    const QString behindLinks = QFileInfo(path).canonicalFilePath();
    const QString target = behindLinks.isEmpty() ? path : behindLinks;
    const std::optional<FileRights> old = rightsOf(target);
    if (old && !S_ISREG(old->mode))
        throw RuntimeError(pathAccessError);
    if (old && ::access(systemName(target).constData(), W_OK) != 0)
        raiseFor(errno);

    const int refusal = putNewFile(target, bytes, old ? old : rightsForNewFile(like), old.has_value());
    // A folder that refuses new files or their rights, or where only the owner may replace a file.
    const bool folderRefuses = refusal == EACCES || refusal == EPERM;
    if (old && folderRefuses)
        overwriteInPlace(target, bytes);
    else if (refusal)
        raiseFor(refusal == ENOENT ? ENOTDIR : refusal);
}

void placeFile(const QString& path, const QByteArray& bytes, bool canBeRun, Flush flush)
{
    NewFile made(folderOf(path), canBeRun ? 0777 : 0666);
    int refusal = made.error();
    if (!refusal) {
        made.fill(bytes, flush);
        refusal = made.takePlaceOf(path);
    }
    if (refusal)
        raiseFor(refusal == ENOENT ? ENOTDIR : refusal);
}

void flushDiskOf(const QString& folder)
{
    const OpenFile opened(folder, O_RDONLY | O_DIRECTORY);
    if (opened.error())
        raiseFor(opened.error());
    opened.flushWholeDisk();
}

void makeFolder(const QString& path, const QString& like)
{
    if (::mkdir(systemName(path).constData(), 0777) == 0) {
        if (const std::optional<FileRights> rights = rightsOf(like))
            OpenFile(path, O_RDONLY | O_DIRECTORY).takeRights(*rights);
        return;
    }
    switch (errno) {
    case ENOENT:
        throw RuntimeError(pathNotFound);
    case EEXIST:
        throw RuntimeError(pathAccessError);
    default:
        raiseFor(errno);
    }
}

void sweepLeftovers(const QString& folder)
{
    const QDir dir(folder);
    const auto leftovers = dir.entryInfoList({leftoverPrefix + u'*'}, QDir::Files | QDir::Hidden);
    time_t now = 0;
    for (const QFileInfo& leftover : leftovers) {
        const QStringList parts = leftover.fileName().split(u'~');
        const pid_t process = parts.value(2).toInt();
        if (process <= 0)
            continue; // not one of our files
        bool dead = parts.value(1) == machineName() && !isRunning(process);
        if (!dead) {
            now = now ? now : clockOf(folder);
            dead = now - leftover.lastModified().toSecsSinceEpoch() > foreignLeftoverSeconds;
        }
        if (dead)
            QFile::remove(leftover.filePath());
    }
}
