// What the card tools do besides moving cards to their places: no cards, a run that is stopped, paused or
// overtaken by another database, and the truth of a Venn diagram. The places are left to tests/oracle.
#include "core/mainView.h"
#include "database/opening.h"
#include "support/cards.h"
#include "support/database.h"
#include "tools/arranging.h"
#include "tools/finding.h"
#include "tools/flight.h"
#include "tools/grouping.h"
#include "tools/pacing.h"
#include "tools/sorting.h"
#include "tools/venn.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

class CardTools : public Fresh {
protected:
    CardTools()
    {
        mainView.showSpeedWindow = [this] { speedChosen(9), speedWindowOpen = true; };
        mainView.unloadSpeedWindow = [this] { stopRun(), speedWindowOpen = false; };
        for (int row = 0; row < 3; ++row)
            session.findRow[row] = {u"1"_s, u"Name"_s, u"includes"_s, QString(QChar(char16_t(u'a' + row)))};
    }

    static void stopInRound(int last)
    {
        recorded.inYield = [last](int round) {
            if (round == last)
                stopRun();
        };
    }

    /// Whether the card lies in the circle when it belongs to it, wholly, and else not at all.
    static bool liesTrue(int card, const BoardShape& circle, bool belongs)
    {
        const CardImage& image = session.box[card];
        const double r = circle.width / 2;
        const double w = image.width / 2;
        const double h = image.height / 2;
        const double x = std::abs(image.left + w - circle.left - r);
        const double y = std::abs(image.top + h - circle.top - r);
        return belongs ? std::hypot(x + w, y + h) <= r
                       : std::hypot(std::max(x - w, 0.0), std::max(y - h, 0.0)) >= r;
    }

    bool speedWindowOpen = false;
};

} // namespace

TEST_F(CardTools, OfNoCards)
{
    cards({});
    for (const QString& word : arrangements())
        arrangeCards(word);
    buildGroups(1);
    moveCardsToGroups(1);
    EXPECT_EQ(session.board.groupTitle[0].left, 0) << "Other alone";
    EXPECT_EQ(session.board.groupTitle[0].width, 1000);
    EXPECT_TRUE(recorded.messages.isEmpty());
    sortTextUp(1);
    EXPECT_EQ(recorded.messages, QStringList(u"Error|Division by zero"_s));
    EXPECT_TRUE(speedWindowOpen);
}

TEST_F(CardTools, AStoppedFindStillCountsAndAnUnknownRuleMovesNothing)
{
    cards({u"a"_s, u"a"_s});
    stopInRound(2);
    runFind();
    EXPECT_EQ(session.foundCount, 2);
    EXPECT_NEAR(session.box[1].top, 190, 1e-9);
    EXPECT_EQ(session.box[2].top, 200);

    session.andOr[1] = u"and"_s;
    cards({u"a"_s});
    runFind();
    EXPECT_EQ(session.foundCount, 0);
    EXPECT_EQ(session.box[1].top, 200);
    EXPECT_EQ(session.board.searchTitle.text, u"Search for: Name includes a and Name includes c "_s);
}

TEST_F(CardTools, AStoppedFlightLeavesTheCardWhereItIs)
{
    cards({u"one"_s});
    prepareAnimation();
    stopInRound(10);
    moveCardTo(1, 900, 600);
    EXPECT_NEAR(session.box[1].left, 101.5, 1e-9);
    EXPECT_EQ(session.box[1].top, 200);
    EXPECT_FALSE(session.run.cardPlaced[1]);
    EXPECT_THROW(moveCardTo(1, 40000, 0), RuntimeError);
}

TEST_F(CardTools, ChangesOfSpeedActOnTheFlightUnderWay)
{
    cards({u"one"_s});
    prepareAnimation();
    recorded.inYield = [](int round) {
        if (round == 3)
            pauseRun();
        if (round == 4)
            speedChosen(9); // waits for the resume
        if (round == 5) {
            EXPECT_EQ(session.run.animationSpeed, 0);
            resumeRun();
            EXPECT_EQ(session.run.animationSpeed, 10);
            speedChosen(12); // selects nothing
            EXPECT_EQ(session.run.animationSpeed, 10);
        }
    };
    flyOnto(1, Axis::y, 300);
    EXPECT_EQ(session.box[1].top, 300);
    EXPECT_LT(recorded.rounds, 40);
}

TEST_F(CardTools, ValuesThatChangeDuringARunBreakNothing)
{
    cards({u"1"_s, u"2"_s, u"3"_s}, u"123"_s);
    recorded.inYield = [](int) {
        session.cardValue[3][1] = u"99"_s;
    }; // now greater than the initial best value
    sortNumbersUp(1);
    EXPECT_TRUE(session.run.cardPlaced[1] && session.run.cardPlaced[2] && !session.run.cardPlaced[3]);

    cards({"a", "a"});
    recorded.inYield = [](int) { session.cardValue[2][1] = u"b"_s; }; // the second circle had no card
    runVenn([] {});
    EXPECT_TRUE(liesTrue(2, session.board.VennRightCircle, true));
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(CardTools, OpeningAnotherDatabaseLeavesItsCardsWhereTheyAreLaid)
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

TEST_F(CardTools, AVennDiagramIsTrueOnEveryBoard)
{
    mainView.showSpeedWindow = [] { session.run.animationSpeed = 1e9; };
    cards({"ab", "a", "b", "", "ab", "a", "b", "", "ab", "a", "b", "ab", "a", "b", "a", "b"});
    struct {
        double width, height, faceWidth, faceHeight;
    } const sizes[] = {{80, 60, 82, 62}, {80, 24, 82, 24}, {40, 30, 40, 30}};
    for (const auto& [width, height, faceWidth, faceHeight] : sizes) {
        session.cardWidth = width;
        session.cardHeight = height;
        for (int card = 1; card <= session.numCards; ++card)
            session.box[card].width = faceWidth, session.box[card].height = faceHeight;
        for (session.board.width = 800; session.board.width <= 3840; session.board.width += 37) {
            for (session.board.height = 500; session.board.height <= 2100; session.board.height += 29) {
                session.run.stopped = false;
                runVenn([] {});
                for (int card = 1; card <= session.numCards; ++card) {
                    const QString& value = session.cardValue[card][1];
                    ASSERT_TRUE(liesTrue(card, session.board.VennLeftCircle, value.contains('a')) &&
                                liesTrue(card, session.board.VennRightCircle, value.contains('b')))
                        << card << " of " << width << " wide on " << session.board.width << " x "
                        << session.board.height;
                }
            }
        }
    }
}
