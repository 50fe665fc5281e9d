#include "platform/archive.h"

#include "platform/errors.h"
#include "platform/folderLock.h"
#include "platform/wholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStringList>
#include <QtEndian>

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int blockSize = 1 << 16;
constexpr int longestName = 200; // of a file with its folders
constexpr int shownOfName = 60;
constexpr unsigned runBits = 0111;

// The last bytes of a whole archive of version 4 and 5. The reader takes the end of the file for the end of
// the archive, also where half of the files are missing.
const QByteArray lastBytes[] = {"\xC4\x3D\x7B\x00\x40\x07\x00"_ba, "\x1D\x77\x56\x51\x03\x05\x04\x00"_ba};

/// A file or folder in the archive; `name` is relative, with slashes.
struct Entry {
    QString name;
    bool isFolder = false;
    bool canBeRun = false;
    qint64 size = 0;
};

using Wanted = std::function<bool(const Entry& entry)>;
using Take = std::function<void(const Entry& entry, const QByteArray& bytes)>;

/// The checksum of ZIP and RAR archives: CRC-32.
class Checksum {
public:
    void add(const uchar* bytes, size_t size)
    {
        static const auto table = [] {
            std::array<quint32, 256> sums;
            for (quint32 byte = 0; byte < sums.size(); ++byte) {
                quint32 sum = byte;
                for (int bit = 0; bit < 8; ++bit)
                    sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320u : 0);
                sums[byte] = sum;
            }
            return sums;
        }();
        for (const uchar* byte = bytes; byte != bytes + size; ++byte)
            rest = table[(rest ^ *byte) & 0xff] ^ (rest >> 8);
    }
    quint32 value() const { return ~rest; }

private:
    quint32 rest = ~0u;
};

/// Whether a character can neither be seen nor is a blank: control characters, marks that turn the direction
/// of text.
bool isHidden(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
           c.category() == QChar::Other_NotAssigned || c.category() == QChar::Separator_Line ||
           c.category() == QChar::Separator_Paragraph;
}

QString fitForABox(QString name)
{
    std::replace_if(name.begin(), name.end(), isHidden, u'?');
    return name.size() > shownOfName ? name.first(shownOfName) + u"..."_s : name;
}

bool leadsIntoTheFolder(const QString& name)
{
    const QStringList parts = name.split(u'/');
    return name.size() <= longestName && name.isValidUtf16() && !name.contains(u':') &&
           std::none_of(name.begin(), name.end(), isHidden) &&
           std::none_of(parts.begin(), parts.end(), [](const QString& part) {
               return part.isEmpty() || part == "."_L1 || part == ".."_L1;
           });
}

/// The names met in the archive and the folders that they lie in, as disks see them that don't tell capitals
/// from small letters.
class Names {
public:
    /// False when something else has that name already.
    bool add(const Entry& entry)
    {
        qsizetype end = 0;
        do {
            end = entry.name.indexOf(u'/', end + 1);
            const Known part{end < 0 ? entry.name : entry.name.first(end), end >= 0 || entry.isFolder};
            const QString key = part.name.normalized(QString::NormalizationForm_C).toCaseFolded();
            const auto known = met.constFind(key);
            if (known == met.constEnd())
                met.insert(key, part);
            else if (known->name != part.name || !known->isFolder || !part.isFolder)
                return false;
        } while (end >= 0);
        return true;
    }

private:
    struct Known {
        QString name;
        bool isFolder;
    };
    QHash<QString, Known> met;
};

/// An archive that can be read several times, each time with all checks.
class Source {
public:
    Source(const QString& path, const std::atomic<bool>& stopped)
        : file(path)
        , stop(stopped)
    {
        const QFileInfo info(path);
        if (!info.exists())
            throw RuntimeError(fileNotFound, u"\"%1\" was not found."_s.arg(info.fileName()));
        if (!info.isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            refuseFor(u"it can't be read"_s);
    }

    /// Reads it to its end and hands over the wanted files.
    void read(const Wanted& wanted, const Take& take);

private:
    struct Closer {
        void operator()(::archive* reader) const { archive_read_free(reader); }
    };
    using Reader = std::unique_ptr<::archive, Closer>;

    [[noreturn]] void refuseFor(const QString& reason) const
    {
        const QString name = QFileInfo(file.fileName()).fileName();
        throw RuntimeError(pathAccessError, u"\"%1\" can't be unpacked: %2."_s.arg(name, reason));
    }
    [[noreturn]] void refuseAsDamaged() const { refuseFor(u"it is damaged"_s); }

    Reader opened();
    bool isWhole();
    Entry described(archive_entry* entry) const;
    QByteArray contentOf(const Reader& reader, const Entry& entry, bool kept) const;
    std::optional<quint32> checksumIn(const Reader& reader) const;
    void stopWhenTold() const
    {
        if (stop)
            refuseFor(u"it was stopped"_s);
    }

    QFile file;
    const std::atomic<bool>& stop;
};

Source::Reader Source::opened()
{
    Reader reader(archive_read_new());
    archive_read_support_format_rar(reader.get());
    archive_read_support_format_rar5(reader.get());
    if (!isWhole() || !file.seek(0) ||
        archive_read_open_fd(reader.get(), file.handle(), blockSize) != ARCHIVE_OK)
        refuseAsDamaged();
    return reader;
}

bool Source::isWhole()
{
    return std::any_of(std::begin(lastBytes), std::end(lastBytes), [this](const QByteArray& last) {
        return file.seek(std::max<qint64>(file.size() - last.size(), 0)) && file.read(last.size()) == last;
    });
}

Entry Source::described(archive_entry* entry) const
{
    const char* utf8 = archive_entry_pathname_utf8(entry);
    const char* raw = archive_entry_pathname(entry);
    const auto type = archive_entry_filetype(entry);
    Entry found;
    found.name = utf8 ? QString::fromUtf8(utf8) : QString::fromLatin1(raw);
    found.name.replace(u'\\', u'/');
    found.isFolder = type == AE_IFDIR;
    if (found.isFolder && found.name.endsWith(u'/'))
        found.name.chop(1);
    found.canBeRun = archive_entry_perm(entry) & runBits;
    found.size = archive_entry_size_is_set(entry) ? archive_entry_size(entry) : -1;

    const QString shown = u'"' + fitForABox(found.name) + u'"';
    if (!leadsIntoTheFolder(found.name))
        refuseFor(u"the name %1 in it is not allowed"_s.arg(shown));
    if (archive_entry_symlink(entry) || archive_entry_hardlink(entry) ||
        (type != AE_IFREG && !found.isFolder))
        refuseFor(u"%1 in it is a link"_s.arg(shown));
    return found;
}

/// The checksum in the header of the present file of a RAR 4 archive, none for RAR 5.
std::optional<quint32> Source::checksumIn(const Reader& reader) const
{
    constexpr qint64 mark = 7, typeAt = 2, lengthAt = 5, checksumAt = 16;
    constexpr char fileHeader = 0x74;
    char head[checksumAt + sizeof(quint32)] = {};
    qint64 at = archive_read_header_position(reader.get());
    const auto load = [&] { return ::pread(file.handle(), head, sizeof head, at) == sizeof head; };
    if (at == 0 && load()) // of the first file libarchive gives the archive's beginning
        at = mark + qFromLittleEndian<quint16>(head + mark + lengthAt);
    if (!load() || head[typeAt] != fileHeader)
        return {};
    return qFromLittleEndian<quint32>(head + checksumAt);
}

QByteArray Source::contentOf(const Reader& reader, const Entry& entry, bool kept) const
{
    const QString wrongSize = u"the size of \"%1\" in it is wrong"_s.arg(fitForABox(entry.name));
    const std::optional<quint32> expected = checksumIn(reader); // libarchive ignores that of a stored file
    Checksum checksum;
    QByteArray bytes;
    qint64 length = 0;
    const void* block = nullptr;
    size_t size = 0;
    la_int64_t offset = 0;
    int result = ARCHIVE_OK;
    while ((result = archive_read_data_block(reader.get(), &block, &size, &offset)) == ARCHIVE_OK) {
        stopWhenTold();
        if (offset != length || qint64(size) > entry.size - length)
            refuseFor(wrongSize);
        length += qint64(size);
        checksum.add(static_cast<const uchar*>(block), size);
        if (kept)
            bytes.append(static_cast<const char*>(block), qsizetype(size));
    }
    if (result != ARCHIVE_EOF)
        refuseAsDamaged();
    if (length != entry.size)
        refuseFor(wrongSize);
    if (expected && checksum.value() != *expected)
        refuseAsDamaged();
    return bytes;
}

void Source::read(const Wanted& wanted, const Take& take)
{
    const Reader reader = opened();
    Names names;
    names.add({QFileInfo(file.fileName()).fileName()}); // it must not unpack itself over itself
    int entries = 0;
    int files = 0;
    qint64 total = 0;
    archive_entry* header = nullptr;
    int result = ARCHIVE_OK;
    while ((result = archive_read_next_header(reader.get(), &header)) == ARCHIVE_OK ||
           result == ARCHIVE_WARN) {
        stopWhenTold();
        const Entry entry = described(header);
        if (++entries > mostInArchive)
            refuseFor(u"it has more than 10,000 files"_s);
        if (!names.add(entry))
            refuseFor(u"the name \"%1\" is in it twice"_s.arg(fitForABox(entry.name)));
        if (entry.isFolder)
            continue;
        if (entry.size > largestFile || (total += std::max<qint64>(entry.size, 0)) > mostUnpacked)
            refuseFor(u"it is larger than a gigabyte"_s);
        const bool kept = wanted(entry);
        const QByteArray bytes = contentOf(reader, entry, kept);
        if (kept)
            take(entry, bytes);
        ++files;
    }
    if (result != ARCHIVE_EOF)
        refuseAsDamaged();
    if (files == 0)
        refuseFor(u"it has no files in it"_s);
}

/// What a file is on its disk, whatever its name.
struct Identity {
    dev_t disk = 0;
    ino_t number = 0;
    bool operator==(const Identity&) const = default;
};

Identity identityOf(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? Identity{status.st_dev, status.st_ino}
                                                                      : Identity{};
}

/// What is being unpacked. The destructor removes the files and folders that were not there before, unless
/// keep() was called. What another program has unpacked over them in the meantime stays.
class Unpacked {
public:
    explicit Unpacked(const QString& target)
        : folder(target)
    {
    }
    ~Unpacked()
    {
        for (auto made = newPaths.crbegin(); made != newPaths.crend(); ++made) {
            if (identityOf(made->path) == made->identity && !QFile::remove(made->path))
                QDir().rmdir(made->path);
        }
    }
    Unpacked(const Unpacked&) = delete;
    Unpacked& operator=(const Unpacked&) = delete;

    void add(const Entry& entry, const QByteArray& bytes, Flush flush)
    {
        prepareFoldersOf(entry.name);
        const QString path = folder + u'/' + entry.name;
        const bool isNew = !QFileInfo::exists(path);
        placeFile(path, bytes, entry.canBeRun, flush);
        if (isNew)
            newPaths.append({path, identityOf(path)});
    }
    void keep() { newPaths.clear(); }

private:
    /// Makes the folders and removes what a killed program has left in them.
    void prepareFoldersOf(const QString& name)
    {
        for (qsizetype end = 0; end >= 0; end = name.indexOf(u'/', end + 1)) {
            const QString path = folder + u'/' + name.first(end);
            if (prepared.contains(path))
                continue;
            prepared.append(path);
            if (QFileInfo(path).isDir()) {
                sweepLeftovers(path);
            } else {
                makeFolder(path);
                newPaths.append({path, identityOf(path)});
            }
        }
    }

    struct Made {
        QString path;
        Identity identity;
    };
    QString folder;
    QStringList prepared;
    QList<Made> newPaths;
};

} // namespace

void unpackArchive(const QString& archive, const QString& folder, const std::atomic<bool>& stop)
{
    const FolderLock lock(folder); // two programs at once would unpack everything twice
    Source source(archive, stop);
    source.read([](const Entry&) { return false; }, {});
    Unpacked unpacked(folder);
    source.read([](const Entry& entry) { return entry.name.contains(u'/'); },
                [&unpacked](const Entry& entry, const QByteArray& bytes) {
                    unpacked.add(entry, bytes, Flush::later);
                });
    flushDiskOf(folder); // once for thousands of files
    source.read(
        [](const Entry& entry) { return !entry.name.contains(u'/'); },
        [&unpacked](const Entry& entry, const QByteArray& bytes) { unpacked.add(entry, bytes, Flush::now); });
    unpacked.keep();
}
