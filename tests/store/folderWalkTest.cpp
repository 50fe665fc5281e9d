#include "store/folderWalk.h"

#include "support/freshStart.h"
#include "support/slowMount.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

using testing::ElementsAre;

namespace {

constexpr int patience = 10000; // milliseconds
const QString nothing = QStringLiteral("ImPossIBle*");
const QString bitmaps = QStringLiteral("*.bmp");

class Walking : public Fresh {
protected:
    Walking()
    {
        desktop.volumes = [] {
            return QList<Volume>{{QStringLiteral("(HOME)"), testFolder() + QStringLiteral("home"), 3},
                                 {QStringLiteral("(CDROM)"), testFolder() + QStringLiteral("no disc"), 5}};
        };
        QDir().mkpath(testFolder() + QStringLiteral("home"));
    }

    static void make(const QStringList& paths)
    {
        for (const QString& path : paths) {
            const QString whole = testFolder() + path;
            QDir().mkpath(QFileInfo(whole).path());
            if (path.endsWith(QLatin1Char('/')))
                continue;
            QFile file(whole);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        }
    }

    void start(const QString& folder, const QString& pattern = nothing, bool marksDatabases = true)
    {
        walk.start(testFolder() + folder, pattern, marksDatabases, QSize(64, 64));
        settle();
    }

    /// Until the place has been read and all that is shown is known.
    void settle()
    {
        const auto known = [this] {
            for (int slot = 0; slot < FolderWalk::slotCount; ++slot) {
                if (!walk.item(slot).certain)
                    return false;
            }
            return !walk.waiting();
        };
        ASSERT_TRUE(QTest::qWaitFor(known, patience));
    }

    QStringList shown() const
    {
        QStringList all;
        for (int slot = 0; slot < FolderWalk::slotCount; ++slot) {
            if (!walk.item(slot).tag.isEmpty())
                all.append(walk.item(slot).tag + QLatin1Char(' ') + walk.item(slot).name);
        }
        return all;
    }

    FolderWalk walk;
};

} // namespace

TEST_F(Walking, ShowsFoldersAndDatabasesByNameAndNothingElse)
{
    make({"home/zoo/db-info.tdb", "home/Animals/", "home/birds/", "home/.secret/", "home/letter.txt",
          "home/map.bmp"});
    start(QStringLiteral("home"));
    EXPECT_THAT(shown(), ElementsAre("Dir Animals", "Dir birds", "tdb zoo"));
    EXPECT_EQ(walk.lastFirst(), 1);
    EXPECT_EQ(walk.item(2).path, testFolder() + QStringLiteral("home/zoo"));
}

TEST_F(Walking, ShowsPicturesShrunkAndWithoutTheirEnding)
{
    make({"home/zoo/db-info.tdb", "home/broken.bmp", "home/notes.txt"});
    QImage map(300, 100, QImage::Format_RGB32);
    map.fill(Qt::red);
    ASSERT_TRUE(map.save(testFolder() + QStringLiteral("home/Our.School.BMP"), "BMP"));
    start(QStringLiteral("home"), bitmaps, false);
    EXPECT_THAT(shown(), ElementsAre("Dir zoo", "File broken", "File Our.School"));
    EXPECT_TRUE(walk.item(1).picture.isNull());
    EXPECT_EQ(walk.item(2).picture.size(), QSize(64, 64));
    EXPECT_EQ(walk.item(2).picture.pixelColor(32, 32), QColor(Qt::red));
}

TEST_F(Walking, GoesDownAndUpToTheDrives)
{
    make({"home/a/b/"});
    start(QStringLiteral("home/a"));
    EXPECT_EQ(walk.placeName(), QStringLiteral("a"));
    walk.enter(walk.item(0));
    settle();
    EXPECT_EQ(walk.placeName(), QStringLiteral("b"));
    EXPECT_TRUE(shown().isEmpty());
    walk.up();
    settle();
    walk.up();
    settle();
    EXPECT_EQ(walk.placeName(), QStringLiteral("(HOME)"));
    walk.up();
    EXPECT_EQ(walk.placeName(), QStringLiteral("My Computer"));
    EXPECT_THAT(shown(), ElementsAre("Drive (HOME)", "Drive (CDROM)"));
    walk.up(); // there is nothing above
    walk.setFirst(1);
    EXPECT_THAT(shown(), ElementsAre("Drive (HOME)", "Drive (CDROM)"));
    walk.enter(walk.item(0));
    settle();
    EXPECT_THAT(shown(), ElementsAre("Dir a"));
}

TEST_F(Walking, StaysWhereItIsWhenAPlaceCannotBeRead)
{
    make({"home/a/", "home/b/db-info.tdb"});
    start(QStringLiteral("home"));
    QSignalSpy refused(&walk, &FolderWalk::refused);

    QDir(testFolder() + QStringLiteral("home/a")).removeRecursively();
    walk.enter(walk.item(0));
    settle();
    EXPECT_THAT(shown(), ElementsAre("Dir a", "tdb b"));

    walk.up();
    walk.enter(walk.item(1));
    settle();
    EXPECT_TRUE(walk.amongDrives());
    ASSERT_EQ(refused.size(), 2);
    EXPECT_EQ(refused[0][0].toInt(), pathNotFound);
    EXPECT_EQ(refused[1][0].toInt(), deviceUnavailable);
}

TEST_F(Walking, ReadsOnlyWhatIsShownOfFiveThousandFolders)
{
    QDir home(testFolder() + QStringLiteral("home"));
    for (int i = 0; i < 5000; ++i)
        ASSERT_TRUE(home.mkdir(QStringLiteral("%1").arg(i, 4, 10, QLatin1Char('0'))));
    make({"home/4999/db-info.tdb"});
    QSignalSpy learnt(&walk, &FolderWalk::itemChanged);
    start(QStringLiteral("home"));
    EXPECT_EQ(learnt.size(), 8);
    EXPECT_EQ(walk.lastFirst(), 4998);

    walk.setFirst(1);
    settle();
    EXPECT_EQ(learnt.size(), 9); // seven were known
    walk.setFirst(4998);
    settle();
    EXPECT_THAT(shown(), ElementsAre("Dir 4998", "tdb 4999"));
}

TEST_F(Walking, ASlowFolderHoldsUpNobody)
{
    constexpr int delay = 200;
    make({"home/a/", "home/b/", "home/c/", "home/d/", "home/e/db-info.tdb"});
    const SlowMount slow(delay, testFolder() + QStringLiteral("home"));
    if (slow.path().isEmpty())
        GTEST_SKIP() << slow.reason().toStdString();
    QElapsedTimer clock;
    clock.start();
    walk.start(slow.path(), nothing, true, QSize(64, 64));
    EXPECT_TRUE(walk.waiting());
    EXPECT_LT(clock.elapsed(), delay);
    settle();
    EXPECT_THAT(shown(), ElementsAre("Dir a", "Dir b", "Dir c", "Dir d", "tdb e"));

    clock.restart();
    walk.enter(walk.item(0));
    walk.stop();
    EXPECT_FALSE(walk.waiting());
    EXPECT_LT(clock.elapsed(), delay);
}
