#include "core/session.h"

#include "support/freshStart.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

using SessionState = Fresh;

TEST_F(SessionState, ResettingTheCardTableLeavesTheCount)
{
    session.numCards = 7;
    session.cardValue[7][0] = u"00100020"_s;
    session.cardValue[99][12] = u"tail"_s;
    session.cardId[7] = u"ABCDEFGH"_s;
    session.box[7].visible = true;
    session.cardWidth = 40;
    session.cardHeight = 30;

    resetCardTable();

    EXPECT_EQ(session.numCards, 7);
    EXPECT_TRUE(session.cardValue[7][0].isEmpty());
    EXPECT_TRUE(session.cardValue[99][12].isEmpty());
    EXPECT_TRUE(session.cardId[7].isEmpty());
    EXPECT_FALSE(session.box[7].visible);
    EXPECT_EQ(session.box[0].width, 40);
    EXPECT_EQ(session.box[99].height, 30);
}

TEST_F(SessionState, AnIndexOutsideATableIsAnErrorAndNotClamped)
{
    EXPECT_NO_THROW(session.cardValue[100][12]);
    for (const int card : {-1, 101, 32767})
        EXPECT_THROW(session.cardValue[card], RuntimeError) << card;
    EXPECT_THROW(session.cardValue[1][13], RuntimeError);
}

TEST_F(SessionState, StackingMovesOneCardAndKeepsTheOrderOfTheOthers)
{
    session.cardStack.bringToFront(2);
    session.cardStack.sendToBack(4);
    const auto& order = session.cardStack.fromBelow();
    EXPECT_THAT(std::vector<int>(order.begin(), order.begin() + 5), ElementsAre(4, 0, 1, 3, 5));
    EXPECT_EQ(order.back(), 2);
}
