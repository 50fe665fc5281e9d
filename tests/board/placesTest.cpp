#include "board/places.h"

#include "core/mainView.h"
#include "core/session.h"
#include "support/freshStart.h"

namespace {

void cardAt(int card, double left, double top)
{
    session.box[card] = {left, top, 80, 60, {}, {}, true, {}};
    session.numCards = std::max(session.numCards, card);
}

} // namespace

using Places = Fresh;

TEST_F(Places, AreWrittenAndReadInFourDigitHalves)
{
    const struct {
        double left, top;
        const char* position;
        double leftAgain, topAgain;
    } cases[] = {
        {123, 85, "01230085", 123, 85},       {0, 0, "00000000", 0, 0}, {12.9, 7.2, "00120007", 12, 7},
        {-12, 85, "-00120085", -1, 20085}, // wider than the fixed width, so read back wrongly
        {12345, 6, "123450006", 1234, 50006},
    };
    for (const auto& c : cases) {
        cardAt(1, c.left, c.top);
        saveCardPosition(1);
        EXPECT_EQ(session.cardValue[1][0], QLatin1String(c.position));
        placeCard(1);
        EXPECT_EQ(session.box[1].left, c.leftAgain) << c.position;
        EXPECT_EQ(session.box[1].top, c.topAgain) << c.position;
    }
    session.cardValue[1][0].clear();
    placeCard(1);
    EXPECT_EQ(session.box[1].left, 0);
    EXPECT_EQ(session.box[1].top, 0);
}

TEST_F(Places, AtRandomTakeTheFirstFreeOneOfTwentyOneBelowTheMenu)
{
    cardAt(1, 40, 100); // where the first attempt puts card 2
    cardAt(2, 0, 0);
    recorded.randoms = {0, 0, 0.5, 0.25};
    placeCardAtRandom(2);
    EXPECT_EQ(session.box[2].left, (1000 - 200) * 0.5 + 40);
    EXPECT_EQ(session.box[2].top, (700 - 100 - 90) * 0.25 + 100);
    EXPECT_TRUE(recorded.randoms.empty());

    session.board.width = 200; // every attempt gives a left of 40
    session.board.height = 190;
    recorded.randoms.assign(44, 0.0);
    placeCardAtRandom(2);
    EXPECT_EQ(recorded.randoms.size(), 2U) << "the first place and twenty more";
    EXPECT_TRUE(cardOverlaps(2));
}

TEST_F(Places, OverlapIsJudgedByTheCardsOwnMeasures)
{
    cardAt(1, 100, 100);
    const struct {
        double left, top;
        bool overlaps;
    } cases[] = {{179, 100, true}, {180, 100, false}, {21, 159, true}, {100, 160, false}, {100, 40, false}};
    for (const auto& c : cases) {
        cardAt(2, c.left, c.top);
        EXPECT_EQ(cardOverlaps(2), c.overlaps) << c.left << ' ' << c.top;
    }
    cardAt(2, 100, 100);
    session.box[2].width = 10; // only card 2 is small
    session.box[1].left = 120;
    EXPECT_FALSE(cardOverlaps(2));
    EXPECT_TRUE(cardOverlaps(1));
    session.box[2].visible = false;
    EXPECT_FALSE(cardOverlaps(1));
    session.numCards = 101; // past the table
    session.box[2].visible = true;
    EXPECT_FALSE(cardOverlaps(1)) << "an error makes it false";
}
