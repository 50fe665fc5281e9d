#include "tools/sorting.h"

#include "core/mainView.h"
#include "database/opening.h"
#include "support/cards.h"
#include "support/database.h"
#include "tools/pacing.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

class Sorting : public Fresh {
protected:
    Sorting()
    {
        mainView.showSpeedWindow = [this] { speedChosen(9), speedWindowOpen = true; };
        mainView.unloadSpeedWindow = [this] { stopRun(), speedWindowOpen = false; };
    }

    bool speedWindowOpen = false;
};

} // namespace

TEST_F(Sorting, OfNoCardsIsReportedAndLeavesTheSpeedWindow)
{
    cards({});
    sortTextUp(1);
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Division by zero"_s));
    EXPECT_TRUE(speedWindowOpen);
}

TEST_F(Sorting, PassesOverARoundThatFindsNoCard)
{
    cards({u"1"_s, u"2"_s, u"3"_s}, u"123"_s);
    recorded.inYield = [](int) {
        session.cardValue[3][1] = u"99"_s;
    }; // now greater than the initial best value
    sortNumbersUp(1);
    EXPECT_TRUE(session.run.cardPlaced[1]);
    EXPECT_TRUE(session.run.cardPlaced[2]);
    EXPECT_FALSE(session.run.cardPlaced[3]);
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(Sorting, OpeningAnotherDatabaseLeavesItsCardsWhereTheyAreLaid)
{
    openChosenFolder(writeDatabase(u"old"_s, 3));
    const QString other = writeDatabase(u"new"_s, 3);
    recorded.inYield = [&](int round) {
        if (round == 3)
            openChosenFolder(other);
    };
    sortTextDown(1);
    std::vector<QPointF> lie;
    for (int card = 1; card <= session.numCards; ++card)
        lie.emplace_back(session.box[card].left, session.box[card].top);
    tileCards();
    for (int card = 1; card <= session.numCards; ++card)
        EXPECT_EQ(lie[card - 1], QPointF(session.box[card].left, session.box[card].top)) << card;
    EXPECT_FALSE(speedWindowOpen);
}
