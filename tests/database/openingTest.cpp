#include "database/opening.h"

#include "database/loading.h"
#include "store/settings.h"
#include "support/cards.h"
#include "support/database.h"

using namespace Qt::StringLiterals;

namespace {

class Opening : public Fresh {
protected:
    Opening()
    {
        for (int heading = 1; heading <= 3; ++heading)
            session.menu.MenuTop[heading].enabled = false;
        session.window.btnCards.enabled = false;
        session.window.btnTable.pressed = true;
    }

    static QString lastDatabase() { return readSetting(settingsFile(), u"Last DB"_s, u"Path"_s, u"none"_s); }

    static void remember(const QString& folder)
    {
        writeSetting(settingsFile(), u"Last DB"_s, u"Path"_s, folder);
    }
};

} // namespace

TEST_F(Opening, LaysTheCardsOutInABlockOfRows)
{
    struct Case {
        int cards;
        int last;
        QPointF place;
    };
    // Board 1000 by 700, cards of 80 by 60: the distances are limited to 90 and 70.
    const Case cases[] = {{1, 1, {15, 40}}, {10, 10, {15, 40 + 3 * 70}}, {8, 6, {15 + 2 * 90, 40 + 70}}};
    for (const Case& each : cases) {
        cards(QStringList(each.cards, u"x"_s));
        tileCards();
        EXPECT_EQ(QPointF(session.box[each.last].left, session.box[each.last].top), each.place) << each.cards;
        EXPECT_EQ(session.cardStack.fromBelow().back(), each.cards);
    }
    cards(QStringList(64, u"x"_s));
    session.board.width = 450;
    tileCards();
    EXPECT_EQ(session.box[8].left, 15 + 7 * 50) << "closer together on a small board";
}

TEST_F(Opening, MakesAChosenFolderTheOpenDatabase)
{
    session.cardValue[9][1] = u"of the database before"_s;
    session.fieldUseList[4] = true;
    const QString folder = writeDatabase(u"db"_s, 2);
    openChosenFolder(folder);
    EXPECT_EQ(session.dbPath, folder);
    EXPECT_EQ(session.numCards, 2);
    EXPECT_EQ(session.selectedCard, 1);
    EXPECT_EQ(session.board.SelectBox.left, session.box[1].left - 2);
    EXPECT_EQ(session.menu.menuItemState[0][2], u"Show"_s);
    EXPECT_TRUE(session.menu.MenuTop[3].enabled);
    EXPECT_TRUE(session.window.btnCards.enabled);
    EXPECT_TRUE(session.cardValue[9][1].isEmpty());
    EXPECT_FALSE(session.fieldUseList[4]);
    EXPECT_NE(session.cardValue[1][0], u"00000000"_s) << "the place found at loading is noted";
    EXPECT_EQ(lastDatabase(), folder);

    const double left = session.box[2].left;
    session.box[2].left = 700;
    openChosenFolder(folder);
    EXPECT_EQ(session.box[2].left, left) << "opening twice gives the same layout";
}

TEST_F(Opening, TellsThatTheLastDatabaseIsGoneAndOpensNothing)
{
    const QString gone = inTestFolder(u"gone"_s);
    remember(gone);
    openLastDatabase();
    EXPECT_TRUE(session.window.btnCards.pressed && !session.window.btnTable.pressed);
    EXPECT_THAT(recorded.messages,
                testing::ElementsAre(u"Error|Unable to open Database. It may be corrupt or removed."_s));
    EXPECT_EQ(session.dbPath, gone);
    EXPECT_TRUE(session.window.title.contains(gone));
    EXPECT_FALSE(session.menu.MenuTop[1].enabled);
    EXPECT_EQ(lastDatabase(), gone);
}

TEST_F(Opening, ShowsNoCardsAndNoMenusForMoreRecordsThanTheTableHolds)
{
    const QString folder = writeDatabase(u"db"_s, 1);
    for (int i = 0; i < lastCard; ++i)
        putFile(folder + u"/CARD%1.tcd"_s.arg(i, 4, 10, '0'_L1), "\"00000000\"\r\n\"x\"\r\n");
    remember(folder);
    openLastDatabase();
    EXPECT_EQ(session.numCards, 0);
    EXPECT_FALSE(session.box[1].visible);
    EXPECT_FALSE(session.menu.MenuTop[1].enabled);
}

TEST_F(Opening, FramesNoCardThatIsNotOnTheBoard)
{
    openChosenFolder(writeDatabase(u"empty"_s, 0));
    EXPECT_FALSE(session.board.SelectBox.visible);
    const QString folder = writeDatabase(u"db"_s, 2);
    openChosenFolder(folder);
    session.selectedCard = 2;
    EXPECT_TRUE(session.board.SelectBox.visible);
    QFile::remove(folder + u"/BBBBBBBB.tcd"_s);
    loadAllCards();
    EXPECT_FALSE(session.board.SelectBox.visible) << "another workstation took the card";
}

TEST_F(Opening, GoesOnWithoutADescriptionFile)
{
    const QString folder = writeDatabase(u"db"_s, 1);
    QFile::remove(folder + u"/db-info.tdb"_s);
    remember(u"db"_s); // beside the program
    openLastDatabase();
    EXPECT_EQ(session.dbPath, folder);
    EXPECT_TRUE(recorded.messages.first().contains(u"problem reading your database"_s));
    EXPECT_EQ(session.numCards, 1);
    EXPECT_TRUE(session.menu.MenuTop[1].enabled);
}
