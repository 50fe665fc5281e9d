#include "store/opening.h"

#include "store/settings.h"
#include "support/cards.h"
#include "support/database.h"

namespace {

class Opening : public Fresh {
protected:
    Opening()
    {
        for (int heading = 1; heading <= 3; ++heading)
            session.MenuTop[heading].enabled = false;
        session.btnCards.enabled = false;
    }

    static QString lastDatabase()
    {
        return readSetting(settingsFile(), QStringLiteral("Last DB"), QStringLiteral("Path"),
                           QStringLiteral("none"));
    }

    static void remember(const QString& folder)
    {
        writeSetting(settingsFile(), QStringLiteral("Last DB"), QStringLiteral("Path"), folder);
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
    // Board 1000 by 700, cards of 80 by 60: pitches are capped at 90 and 70.
    const Case cases[] = {{1, 1, {15, 40}}, {10, 10, {15, 40 + 3 * 70}}, {8, 6, {15 + 2 * 90, 40 + 70}}};
    for (const Case& each : cases) {
        cards(QStringList(each.cards, QStringLiteral("x")));
        tileCards();
        EXPECT_EQ(QPointF(session.box[each.last].left, session.box[each.last].top), each.place) << each.cards;
        EXPECT_EQ(session.cardStack.fromBelow().back(), each.cards);
    }
    cards(QStringList(64, QStringLiteral("x")));
    session.boardWidth = 450;
    tileCards();
    EXPECT_EQ(session.box[8].left, 15 + 7 * 50) << "closer together on a small board";
}

TEST_F(Opening, MakesAChosenFolderTheOpenDatabase)
{
    session.cardValue[9][1] = QStringLiteral("of the database before");
    session.fieldUseList[4] = true;
    const QString folder = writeDatabase(QStringLiteral("db"), 2);
    openChosenFolder(folder);
    EXPECT_EQ(session.dbPath, folder);
    EXPECT_EQ(session.numCards, 2);
    EXPECT_EQ(session.selectedCard, 1);
    EXPECT_EQ(session.SelectBox.left, session.box[1].left - 2);
    EXPECT_EQ(session.menuItemState[0][2], QStringLiteral("Show"));
    EXPECT_TRUE(session.MenuTop[3].enabled);
    EXPECT_TRUE(session.btnCards.enabled);
    EXPECT_TRUE(session.cardValue[9][1].isEmpty());
    EXPECT_FALSE(session.fieldUseList[4]);
    EXPECT_NE(session.cardValue[1][0], QStringLiteral("00000000")) << "the place found at loading is noted";
    EXPECT_EQ(lastDatabase(), folder);

    const double left = session.box[2].left;
    session.box[2].left = 700;
    openChosenFolder(folder);
    EXPECT_EQ(session.box[2].left, left) << "opening twice gives the same layout";
}

TEST_F(Opening, TellsThatTheLastDatabaseIsGoneAndOpensNothing)
{
    const QString gone = inTestFolder(QStringLiteral("gone"));
    remember(gone);
    openLastDatabase();
    EXPECT_THAT(recorded.messages, testing::ElementsAre(QStringLiteral(
                                       "Error|Unable to open Database. It may be corrupt or removed.")));
    EXPECT_EQ(session.dbPath, gone);
    EXPECT_TRUE(session.title.contains(gone));
    EXPECT_FALSE(session.MenuTop[1].enabled);
    EXPECT_EQ(lastDatabase(), gone);
}

TEST_F(Opening, GoesOnWithoutADescriptionFile)
{
    const QString folder = writeDatabase(QStringLiteral("db"), 1);
    QFile::remove(folder + QStringLiteral("/db-info.tdb"));
    remember(folder);
    openLastDatabase();
    EXPECT_TRUE(recorded.messages.first().contains(QStringLiteral("problem reading your database")));
    EXPECT_EQ(session.numCards, 1);
    EXPECT_TRUE(session.MenuTop[1].enabled);
}
