#include "tools/bin.h"

#include "support/cards.h"
#include "support/freshStart.h"

#include <QDir>
#include <QFile>

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
            write(QByteArray(id) + ".tcd", QByteArray("\"01000100\"\r\n\"") + id + "\"\r\n");
    }

    void write(const QByteArray& name, const QByteArray& bytes)
    {
        QFile file(testFolder() + QString::fromLatin1(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    QStringList files() const { return QDir(testFolder()).entryList(QDir::Files, QDir::Name); }
};

} // namespace

TEST_F(TheBin, TakesACardWhoseCentreLiesWithinIt)
{
    cards({QStringLiteral("one")}); // its centre lies at (140, 230)
    session.BigBin.left = 100;
    session.BigBin.width = 128;
    session.BigBin.top = 81;
    session.BigBin.height = 150;
    EXPECT_FALSE(liesOnBin(1)) << "hidden";
    session.BigBin.visible = true;
    EXPECT_TRUE(liesOnBin(1));
    session.box[1].top += 1; // the centre on the very edge
    EXPECT_FALSE(liesOnBin(1));
}

TEST_F(TheBin, RemovesTheFilesOfThatIdentityWhateverItsNumberIsByNow)
{
    write("BBBBBBBB.bmp", "picture");
    write("BBBBBBBB.snd", "sound");
    cards({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    session.cardId[1] = QStringLiteral("BBBBBBBB"); // another workstation has changed the numbers meanwhile
    deleteCard(QStringLiteral("BBBBBBBB"));
    EXPECT_EQ(files(), QStringList({QStringLiteral("AAAAAAAA.tcd"), QStringLiteral("CCCCCCCC.tcd"),
                                    QStringLiteral("db-info.tdb")}));
    EXPECT_EQ(session.numCards, 2);
    EXPECT_EQ(session.cardValue[2][1], QStringLiteral("CCCCCCCC"));
    EXPECT_TRUE(session.title.contains(QStringLiteral("2 Card(s)")));
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(TheBin, ScattersWhatIsLeftOnlyWhenTheTeacherWantsIt)
{
    session.txtDelRandomCard = QStringLiteral("0");
    deleteCard(QStringLiteral("AAAAAAAA"));
    EXPECT_EQ(session.box[1].left, 100);
    session.txtDelRandomCard = QStringLiteral("1");
    deleteCard(QStringLiteral("BBBBBBBB"));
    EXPECT_EQ(session.box[1].left, (1000 - 2.5 * session.box[1].width) * 0.5 + session.box[1].width / 2);
    EXPECT_EQ(session.cardValue[1][0].left(4).toInt(), int(session.box[1].left));
}
