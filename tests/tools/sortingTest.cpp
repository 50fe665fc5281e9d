#include "tools/sorting.h"

#include "core/screen.h"
#include "store/opening.h"
#include "support/cards.h"
#include "support/database.h"
#include "tools/pacing.h"

using testing::ElementsAre;

namespace {

class Sorting : public Fresh {
protected:
    Sorting()
    {
        screen.showSpeedWindow = [this] { speedChosen(9), speedWindowOpen = true; };
        screen.unloadSpeedWindow = [this] { stopRun(), speedWindowOpen = false; };
    }

    bool speedWindowOpen = false;
};

} // namespace

TEST_F(Sorting, OfNoCardsIsReportedAndLeavesTheSpeedWindow)
{
    cards({});
    sortTextUp(1);
    EXPECT_THAT(recorded.messages, ElementsAre(QStringLiteral("Error|Division by zero")));
    EXPECT_TRUE(speedWindowOpen);
}

TEST_F(Sorting, PassesOverARoundThatFindsNoCard)
{
    cards({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}, QStringLiteral("123"));
    recorded.inYield = [](int) { session.cardValue[3][1] = QStringLiteral("99"); }; // beyond the seed by now
    sortNumbersUp(1);
    EXPECT_TRUE(session.cardPlaced[1]);
    EXPECT_TRUE(session.cardPlaced[2]);
    EXPECT_FALSE(session.cardPlaced[3]);
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(Sorting, OpeningAnotherDatabaseLeavesItsCardsWhereTheyAreLaid)
{
    openChosenFolder(writeDatabase(QStringLiteral("old"), 3));
    const QString other = writeDatabase(QStringLiteral("new"), 3);
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
        EXPECT_EQ(lie[std::size_t(card - 1)], QPointF(session.box[card].left, session.box[card].top)) << card;
    EXPECT_FALSE(speedWindowOpen);
}
