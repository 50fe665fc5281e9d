// Folders that several people share: whoever could read and write a file still can after another's save, and
// whoever writes the database writes its new cards.
#include "core/session.h"
#include "faults/children.h"
#include "faults/otherDisks.h"
#include "faults/writers.h"
#include "store/cardSaving.h"
#include "store/descriptionFile.h"
#include "support/files.h"

#include <QDir>
#include <QRegularExpression>

#include <span>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr gid_t classGroup = 4500;
const User teacher{4000, {4000}};
const User ann{4001, {4001, classGroup}};
const User ben{4002, {4002, classGroup}};
const User stranger{4003, {4003}};

struct Entry {
    quint16 tag;
    quint16 rights;
    quint32 id;
};
using List = std::vector<Entry>;

void setList(const QString& path, const char* name, const List& list)
{
    QByteArray bytes("\2\0\0\0", 4);
    for (const Entry& entry : list)
        bytes.append(reinterpret_cast<const char*>(&entry), sizeof entry);
    ASSERT_EQ(setxattr(path.toUtf8().constData(), name, bytes.constData(), size_t(bytes.size()), 0), 0);
}

const List classList{{1, 7, ~0u}, {4, 5, ~0u}, {8, 7, classGroup}, {16, 7, ~0u}, {32, 0, ~0u}};
const List pupilsList{{1, 6, ~0u}, {2, 6, ann.id}, {2, 6, ben.id}, {4, 0, ~0u}, {16, 6, ~0u}, {32, 0, ~0u}};

struct Kind {
    const char* name;
    std::optional<OtherDisk::Kind> disk;
    uid_t owner; // of folder and files
    gid_t group;
    mode_t folder;
    mode_t files;
    const char* listed; // what has an access list of its own: "folder" for all that comes into it, "files"

    bool refusesNewFiles() const { return (folder & 020) == 0 && group == classGroup; }
};

const Kind kinds[] = {
    {"plain", {}, teacher.id, 4000, 0777, 0666, ""},
    {"setgid", {}, teacher.id, classGroup, 02775, 0664, ""},
    {"with default lists", {}, teacher.id, 4000, 0770, 0660, "folder"},
    {"with listed files", {}, teacher.id, 4000, 0777, 0600, "files"},
    {"of another, with the right to write", {}, teacher.id, classGroup, 0770, 0660, ""},
    {"of another, closed to new files", {}, teacher.id, classGroup, 0750, 0660, ""},
    {"without lists", OtherDisk::withoutLists, teacher.id, classGroup, 0770, 0660, ""},
    {"on FAT", OtherDisk::fat, 0, 0, 0777, 0666, ""},
    {"on a share", OtherDisk::share, 0, 0, 0777, 0666, ""},
};

/// Who may read (4) and write (2) the file, one digit for each of the four.
QString mayDo(const QString& path)
{
    QString all;
    for (const User& user : {teacher, ann, ben, stranger}) {
        const QStringList said = messagesAs(user, [&] {
            const QByteArray name = path.toUtf8();
            const int rights =
                (access(name.constData(), R_OK) == 0 ? 4 : 0) + (access(name.constData(), W_OK) == 0 ? 2 : 0);
            recorded.messages.append(QString::number(rights));
        });
        all += said.join(QString());
    }
    return all;
}

void giveRightsOf(const Kind& kind, const QString& folder)
{
    const auto own = [&](const QString& path, mode_t mode) {
        static_cast<void>(chown(path.toUtf8().constData(), kind.owner, kind.group));
        static_cast<void>(chmod(path.toUtf8().constData(), mode));
    };
    own(folder, kind.folder);
    const bool inherited = qstrcmp(kind.listed, "folder") == 0;
    if (inherited) {
        setList(folder, "system.posix_acl_access", classList);
        setList(folder, "system.posix_acl_default", classList);
    }
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files)) {
        own(file.filePath(), kind.files);
        if (*kind.listed)
            setList(file.filePath(), "system.posix_acl_access", inherited ? classList : pupilsList);
    }
}

/// Those of the writers that write into the database.
const std::span<const Writer> ofDatabase(writers.begin(), writers.size() - 1);

class Rights : public Fresh, public testing::WithParamInterface<Kind> {};

/// A database with one card, and who may do what with it.
QString makeDatabase(const Kind& kind, const QString& folder)
{
    EXPECT_TRUE(QDir().mkdir(folder));
    useFolder(folder);
    for (const Writer& writer : ofDatabase)
        writer.write(0);
    giveRightsOf(kind, folder);
    return mayDo(folder + u"/db-info.tdb"_s);
}

/// Everything that one of them writes: the card that is there, the description, and a new card.
void saveAll(int version)
{
    for (const Writer& writer : ofDatabase)
        writer.write(version);
    session.cardId[1] = u"CARD000%1"_s.arg(version);
    saveCardValues(1);
    saveCardPicture(1);
}

void expectSaved(const QString& folder, int version)
{
    for (const Writer& writer : ofDatabase) {
        const QByteArray bytes = bytesOf(folder + u'/' + QLatin1String(writer.file));
        EXPECT_TRUE(bytes == contentOf(writer, version)) << writer.name;
    }
}

/// All of them; where no list can name its former owner, a new file is not for everybody who had the old
/// ones.
QFileInfoList filesToCompare(const Kind& kind, const QString& folder)
{
    const QDir::Filters files = QDir::Files | QDir::Hidden;
    if (kind.disk == OtherDisk::withoutLists)
        return QDir(folder).entryInfoList({u"CARDAAAA.*"_s, u"*.tdb"_s}, files);
    return QDir(folder).entryInfoList(files);
}

} // namespace

TEST_P(Rights, StayWithEverybodyWhoHadThem)
{
    const Kind& kind = GetParam();
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can act as several users";
    std::optional<OtherDisk> disk;
    if (kind.disk)
        disk.emplace(*kind.disk);
    if (disk && disk->path().isEmpty())
        GTEST_SKIP() << disk->reason().toStdString();
    chmod(testFolder().toUtf8().constData(), 0755);
    const mode_t usual = umask(022);

    for (const mode_t mask : {022, 077}) {
        const QString folder = (disk ? disk->path() + u'/' : testFolder()) + QString::number(mask, 8);
        const QString before = makeDatabase(kind, folder);
        umask(mask);
        int version = 0;
        for (const User& user : {ann, ben, teacher, ann}) {
            ++version;
            const bool refused = kind.refusesNewFiles() && user.id != teacher.id;
            EXPECT_EQ(messagesAs(user, [&] { saveAll(version); }),
                      QStringList(refused ? 2 : 0, u"Error|Path/File access error"_s))
                << user.id;
            expectSaved(folder, version);
            for (const QFileInfo& file : filesToCompare(kind, folder))
                EXPECT_EQ(mayDo(file.filePath()), before)
                    << file.fileName().toStdString() << " after " << user.id << " under " << mask;
        }
        umask(022);
    }
    umask(usual);
}

INSTANTIATE_TEST_SUITE_P(Folders, Rights, testing::ValuesIn(kinds), [](const auto& kind) {
    return QString::fromLatin1(kind.param.name).remove(QRegularExpression(u"\\W"_s)).toStdString();
});
