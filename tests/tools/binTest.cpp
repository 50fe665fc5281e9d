#include "tools/bin.h"

#include "database/loading.h"
#include "support/cards.h"
#include "support/files.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class TheBin : public Fresh {
protected:
    TheBin()
    {
        session.dbPath = testFolder().chopped(1);
        session.numFields = 1;
        session.cardSize = 2;
        write("db-info.tdb",
              " 1 \r\n 2 \r\n\"none\"\r\n\"Name\"\r\n\"Abc\"\r\nFalse\r\nRW\r\nVER=\"1.1.0\"\r\n");
        for (const char* id : {"AAAAAAAA", "BBBBBBBB", "CCCCCCCC"})
            write((QByteArray(id) + ".tcd").constData(), QByteArray("\"01000100\"\r\n\"") + id + "\"\r\n");
    }

    static void write(const char* name, const QByteArray& bytes)
    {
        putFile(inTestFolder(QLatin1String(name)), bytes);
    }

    QStringList files() const { return QDir(testFolder()).entryList(QDir::Files, QDir::Name); }
};

} // namespace

TEST_F(TheBin, TakesACardWhoseCentreLiesWithinIt)
{
    cards({u"one"_s}); // its centre lies at (140, 230)
    session.board.BigBin.left = 100;
    session.board.BigBin.width = 128;
    session.board.BigBin.top = 81;
    session.board.BigBin.height = 150;
    EXPECT_FALSE(liesOnBin(1)) << "hidden";
    session.board.BigBin.visible = true;
    EXPECT_TRUE(liesOnBin(1));
    session.box[1].top += 1; // the centre on the very edge
    EXPECT_FALSE(liesOnBin(1));
}

TEST_F(TheBin, IsPutAwayWhenTheDatabaseBecomesReadOnly)
{
    loadAllCards();
    session.board.BigBin.visible = true;
    session.databaseStatus = u"RO"_s; // by a program on another workstation
    session.box[1].left = session.board.BigBin.left;
    session.box[1].top = session.board.BigBin.top;
    EXPECT_FALSE(liesOnBin(1));
    write("db-info.tdb", " 1 \r\n 2 \r\n\"none\"\r\n\"Name\"\r\n\"Abc\"\r\nFalse\r\nRO\r\nVER=\"1.1.0\"\r\n");
    loadAllCards();
    EXPECT_FALSE(session.board.BigBin.visible);
}

TEST_F(TheBin, KeepsTheFilesAndLeavesWhatAnotherRecordOfTheIdentityNeeds)
{
    write("BBBBBBBB.bmp", "picture");
    write("BBBBBBBB (copy).tcd", "\"01000100\"\r\n\"copy\"\r\n");
    loadAllCards();
    ASSERT_EQ(session.recordName[2], u"BBBBBBBB (copy).tcd"_s);
    EXPECT_EQ(session.cardValue[2][1], u"BBBBBBBB"_s);
    deleteCard(u"BBBBBBBB"_s, u"BBBBBBBB.tcd"_s);
    EXPECT_TRUE(files().contains(u"BBBBBBBB.bmp"_s));
    EXPECT_EQ(session.cardValue[2][1], u"copy"_s);
    deleteCard(u"BBBBBBBB"_s, session.recordName[2]);
    EXPECT_EQ(files().filter(u"BBBBBBBB"_s), QStringList());
    const QString kept = testFolder() + u".kept/2026-03-09 10.30.05"_s;
    EXPECT_EQ(QDir(kept).entryList(QDir::Files), QStringList(u"BBBBBBBB.tcd"_s));
    EXPECT_EQ(QDir(kept + u" 02"_s).entryList(QDir::Files),
              QStringList({u"BBBBBBBB (copy).tcd"_s, u"BBBBBBBB.bmp"_s}));
}

TEST_F(TheBin, ScattersWhatIsLeftOnlyWhenTheTeacherWantsIt)
{
    loadAllCards();
    session.options.txtDelRandomCard = u"0"_s;
    session.cardId[2] = u"AAAAAAAA"_s; // another workstation has changed the numbers meanwhile
    deleteCard(u"AAAAAAAA"_s);
    EXPECT_EQ(files(), QStringList({u"BBBBBBBB.tcd"_s, u"CCCCCCCC.tcd"_s, u"db-info.tdb"_s}));
    EXPECT_EQ(session.numCards, 2);
    EXPECT_EQ(session.box[1].left, 100);
    session.options.txtDelRandomCard = u"1"_s;
    deleteCard(u"BBBBBBBB"_s);
    EXPECT_EQ(session.box[1].left, (1000 - 2.5 * session.box[1].width) * 0.5 + session.box[1].width / 2);
    EXPECT_EQ(session.cardValue[1][0].left(4).toInt(), int(session.box[1].left));
}
