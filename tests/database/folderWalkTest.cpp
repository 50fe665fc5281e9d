#include "database/folderWalk.h"

#include "support/freshStart.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

constexpr int patience = 10000; // milliseconds
const QString nothing = u"ImPossIBle*"_s;
const QString bitmaps = u"*.bmp"_s;

class Walking : public Fresh {
protected:
    Walking()
    {
        desktop.files.volumes = [] {
            return QList<Volume>{{u"(HOME)"_s, testFolder() + u"home"_s, 3},
                                 {u"(CDROM)"_s, testFolder() + u"no disc"_s, 5}};
        };
        QDir().mkpath(testFolder() + u"home"_s);
    }

    static void make(const QStringList& paths)
    {
        for (const QString& path : paths) {
            const QString whole = testFolder() + path;
            QDir().mkpath(QFileInfo(whole).path());
            if (path.endsWith(u'/'))
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

    /// Waits until the place has been read and all slots are complete.
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
                all.append(walk.item(slot).tag + u' ' + walk.item(slot).name);
        }
        return all;
    }

    FolderWalk walk;
};

} // namespace

TEST_F(Walking, ShowsPicturesShrunkAndWithoutTheirEnding)
{
    make({"home/zoo/db-info.tdb", "home/broken.bmp", "home/notes.txt"});
    const QImage map = plain({300, 100}, Qt::red);
    ASSERT_TRUE(map.save(testFolder() + u"home/Our.School.BMP"_s, "BMP"));
    start(u"home"_s, bitmaps, false);
    EXPECT_THAT(shown(), ElementsAre("Dir zoo", "File broken", "File Our.School"));
    EXPECT_TRUE(walk.item(1).picture.isNull());
    EXPECT_EQ(walk.item(2).picture.size(), QSize(64, 64));
    EXPECT_EQ(walk.item(2).picture.pixelColor(32, 32), QColor(Qt::red));
}

TEST_F(Walking, StaysWhereItIsWhenAPlaceCannotBeReadAndHasTheDrivesAtTheTop)
{
    make({"home/Animals/", "home/birds/db-info.tdb", "home/.secret/", "home/letter.txt"});
    start(u"home"_s);
    EXPECT_THAT(shown(), ElementsAre("Dir Animals", "tdb birds"));
    QSignalSpy refused(&walk, &FolderWalk::refused);
    QDir(testFolder() + u"home/Animals"_s).removeRecursively();
    walk.enter(walk.item(0));
    settle();
    EXPECT_THAT(shown(), ElementsAre("Dir Animals", "tdb birds"));

    walk.up();
    walk.enter(walk.item(1));
    settle();
    walk.up(); // there is nothing above
    walk.setFirst(1);
    EXPECT_TRUE(walk.amongDrives());
    EXPECT_THAT(shown(), ElementsAre("Drive (HOME)", "Drive (CDROM)"));
    ASSERT_EQ(refused.size(), 2);
    EXPECT_EQ(refused[0][0].toInt(), pathNotFound);
    EXPECT_EQ(refused[1][0].toInt(), deviceUnavailable);
}

TEST_F(Walking, ReadsOnlyWhatIsShownOfFiveThousandFolders)
{
    QDir home(testFolder() + u"home"_s);
    for (int i = 0; i < 5000; ++i)
        ASSERT_TRUE(home.mkdir(u"%1"_s.arg(i, 4, 10, '0'_L1)));
    make({"home/4999/db-info.tdb"});
    QSignalSpy learnt(&walk, &FolderWalk::itemChanged);
    start(u"home"_s);
    EXPECT_EQ(learnt.size(), 8);
    EXPECT_EQ(walk.lastFirst(), 4998);

    walk.setFirst(1);
    settle();
    EXPECT_EQ(learnt.size(), 9); // seven were known
    walk.setFirst(4998);
    settle();
    EXPECT_THAT(shown(), ElementsAre("Dir 4998", "tdb 4999"));
}
