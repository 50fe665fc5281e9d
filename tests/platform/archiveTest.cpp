#include "platform/archive.h"

#include "support/files.h"
#include "support/rar.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

using namespace Qt::StringLiterals;

using testing::HasSubstr;

namespace {

class Unpacking : public Fresh {
protected:
    /// The description of the error, empty for none.
    static QString unpack(const QByteArray& archive)
    {
        putFile(inTestFolder(u"Videos.rar"_s), archive);
        try {
            unpackArchive(inTestFolder(u"Videos.rar"_s), testFolder().chopped(1), false);
            return {};
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), pathAccessError);
            return error.description();
        }
    }

    /// All files and folders but the archive.
    static QStringList unpacked()
    {
        QStringList names;
        const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        for (QDirIterator all(testFolder(), everything, QDirIterator::Subdirectories); all.hasNext();)
            names.append(all.next().mid(testFolder().size()));
        names.removeOne(u"Videos.rar"_s);
        names.sort();
        return names;
    }
};

QList<Packed> tooMany()
{
    QList<Packed> files;
    for (int number = 0; number <= mostInArchive; ++number)
        files.append({QByteArray::number(number)});
    return files;
}

QByteArray damaged(QByteArray archive, qsizetype at)
{
    archive[at] = char(archive[at] ^ 0x55);
    return archive;
}

} // namespace

TEST_F(Unpacking, WritesEveryFileWithItsRunBit)
{
    putFile(inTestFolder(u"Play me.exe"_s), "old");
    EXPECT_EQ(unpack(rarOf({{"Play me.exe", "#!/bin/sh", 0100755},
                            {"lessons", {}, 040755},
                            {"lessons/One/lesson.json", "{}"},
                            {"lessons\\One\\empty.png"}})),
              QString());
    EXPECT_EQ(unpacked(), QStringList({u"Play me.exe"_s, u"lessons"_s, u"lessons/One"_s,
                                       u"lessons/One/empty.png"_s, u"lessons/One/lesson.json"_s}));
    EXPECT_EQ(bytesOf(inTestFolder(u"Play me.exe"_s)), "#!/bin/sh");
    EXPECT_EQ(bytesOf(inTestFolder(u"lessons/One/lesson.json"_s)), "{}");
    EXPECT_TRUE(QFileInfo(inTestFolder(u"Play me.exe"_s)).isExecutable());
    EXPECT_FALSE(QFileInfo(inTestFolder(u"lessons/One/lesson.json"_s)).permission(QFile::ExeOwner));
}

TEST_F(Unpacking, AHostileOrDamagedArchiveChangesNothing)
{
    QDir(testFolder()).mkdir(u"good"_s);
    putFile(inTestFolder(u"good/one.txt"_s), "old");
    const Packed good{"good/one.txt", "new"};
    const QByteArray whole = rarOf({good, {"another", "x"}});
    const struct {
        const char* reason;
        QByteArray archive;
    } cases[] = {
        {"not allowed", rarOf({good, {"../evil", "x"}})},
        {"not allowed", rarOf({good, {"..\\evil", "x"}})},
        {"not allowed", rarOf({good, {"a/../../evil", "x"}})},
        {"not allowed", rarOf({good, {"/etc/evil", "x"}})},
        {"not allowed", rarOf({good, {"C:\\evil", "x"}})},
        {"not allowed", rarOf({good, {"a//b", "x"}})},
        {"not allowed", rarOf({good, {"./b", "x"}})},
        {"a?bb", rarOf({good, {"a\nbb", "x"}})},
        {"not allowed", rarOf({good, {"a\x7f", "x"}})},
        {"not allowed", rarOf({good, {QByteArray(201, 'a'), "x"}})},
        {"is a link", rarOf({good, {"link", "/etc/passwd", 0120777}})},
        {"is a link", rarOf({good, {"pipe", "", 010644}})},
        {"is in it twice", rarOf({good, {"Good/One.TXT", "x"}})},
        {"is in it twice", rarOf({good, {"a/x"}, {"A/y"}})},
        {"is in it twice", rarOf({good, {"a"}, {"a/b"}})},
        {"is in it twice", rarOf({good, {"a/b"}, {"a"}})},
        {"is in it twice", rarOf({good, {"videos.rar", "x"}})},
        {"is wrong", rarOf({good, {"short", "12345", 0100644, 9}})},
        {"is wrong", rarOf({good, {"long", "12345", 0100644, 3}})},
        {"gigabyte", rarOf({good, {"large", "12345", 0100644, 0x7fffffff}})},
        {"10,000", rarOf(tooMany())},
        {"no files", rarOf({})},
        {"no files", rarOf({{"folder", {}, 040755}})},
        {"damaged", whole.first(whole.size() / 2)},
        {"damaged", whole.chopped(1)},
        {"damaged", damaged(whole, 25)},
        {"damaged", damaged(whole, whole.indexOf("new"))},
        {"damaged", damaged(whole, whole.indexOf("another") + 7)}, // the byte of the last file
        {"damaged", QByteArray(400, 'x')},
        {"damaged", {}},
    };
    for (const auto& [reason, archive] : cases) {
        EXPECT_THAT(unpack(archive).toStdString(), HasSubstr(reason))
            << archive.left(400).mid(60).constData();
        EXPECT_EQ(unpacked(), QStringList({u"good"_s, u"good/one.txt"_s})) << reason;
        EXPECT_EQ(bytesOf(inTestFolder(u"good/one.txt"_s)), "old") << reason;
    }
}

TEST_F(Unpacking, WithoutAnArchiveOrOnceStoppedDoesNothing)
{
    const QString archive = inTestFolder(u"Videos.rar"_s);
    EXPECT_EQ(errorOf([&] { unpackArchive(archive, testFolder(), false); }), fileNotFound);
    putFile(archive, rarOf({{"a", "x"}}));
    EXPECT_EQ(errorOf([&] { unpackArchive(archive, testFolder(), true); }), pathAccessError);
    EXPECT_EQ(unpacked(), QStringList());
}
