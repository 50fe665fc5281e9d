#include "store/keptVersions.h"

#include "core/session.h"
#include "support/files.h"

#include <QDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class KeptVersions : public Fresh {
protected:
    KeptVersions() { session.dbPath = testFolder().chopped(1); }

    static QStringList moments()
    {
        return QDir(inTestFolder(u".kept"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }
    static void putSparse(const QString& path, qint64 bytes)
    {
        putFile(path, "x");
        ASSERT_TRUE(QFile::resize(path, bytes));
    }
};

TEST_F(KeptVersions, LieInAFolderOfTheirMomentThatEverybodyOfTheDatabaseCanWriteTo)
{
    ASSERT_EQ(chmod(testFolder().toUtf8().constData(), 02775), 0);
    for (const char* name : {"CARDAAAA.tcd", "CARDAAAA.bmp"})
        putFile(inTestFolder(QLatin1String(name)), name);
    keepVersions({inTestFolder(u"CARDAAAA.tcd"_s)});
    moveToKept(
        {inTestFolder(u"CARDAAAA.tcd"_s), inTestFolder(u"CARDAAAA.bmp"_s), inTestFolder(u"CARDAAAA.snd"_s)});
    EXPECT_EQ(moments(), QStringList({u"2026-03-09 10.30.05"_s, u"2026-03-09 10.30.05 02"_s}));
    EXPECT_EQ(bytesOf(inTestFolder(u".kept/2026-03-09 10.30.05/CARDAAAA.tcd"_s)), "CARDAAAA.tcd");
    EXPECT_EQ(bytesOf(inTestFolder(u".kept/2026-03-09 10.30.05 02/CARDAAAA.bmp"_s)), "CARDAAAA.bmp");
    EXPECT_TRUE(QDir(testFolder()).isEmpty(QDir::Files));
    struct stat made = {};
    ASSERT_EQ(stat(inTestFolder(u".kept/2026-03-09 10.30.05"_s).toUtf8().constData(), &made), 0);
    EXPECT_EQ(made.st_mode & 07777, 02775u);
}

TEST_F(KeptVersions, AreFiftyMegabytesAndFiveHundredFilesAtMostTheOldestGoingFirst)
{
    const QString card = inTestFolder(u"CARDAAAA.bmp"_s);
    for (int i = 0; i < 4; ++i) {
        putSparse(card, 15 << 20);
        desktop.now = [i] { return QDateTime({2026, 3, 10 + i}, {9, 0}); };
        moveToKept({card});
    }
    EXPECT_EQ(moments(),
              QStringList({u"2026-03-11 09.00.00"_s, u"2026-03-12 09.00.00"_s, u"2026-03-13 09.00.00"_s}));
    putSparse(card, 51 << 20);
    EXPECT_EQ(errorOf([&] { keepVersions({card}); }), outOfMemory);
    moveToKept({card});
    EXPECT_FALSE(QFile::exists(card)) << "too large to be kept";
    EXPECT_EQ(moments().size(), 3);

    for (int i = 0; i < mostKeptFiles; ++i)
        putFile(inTestFolder(u".kept/2026-03-13 09.00.00/%1"_s.arg(i)), "");
    putFile(card, "newest");
    keepVersions({card});
    int files = 0;
    for (const QString& moment : moments())
        files += int(QDir(inTestFolder(u".kept/"_s + moment)).count() - 2);
    EXPECT_EQ(files, mostKeptFiles);
    EXPECT_EQ(moments().size(), 2) << "the newest and one more";
}
