#include "tools/flight.h"

#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

using namespace Qt::StringLiterals;

namespace {

class Flight : public Fresh {
protected:
    Flight()
    {
        cards({u"one"_s});
        prepareAnimation();
    }
};

} // namespace

TEST_F(Flight, StepsAreHalfTheSpeedAndEndWithinOneStep)
{
    session.run.animationSpeed = 10;
    EXPECT_TRUE(flyAlong(1, Axis::x, 131));
    EXPECT_EQ(session.box[1].left, 125); // 5 a round, and stops once it is closer than 10
    EXPECT_EQ(recorded.rounds, 5);
    EXPECT_EQ(recorded.redrawnCards.size(), 5U);
    EXPECT_TRUE(flyOnto(1, Axis::x, 20));
    EXPECT_EQ(session.box[1].left, 20);
}

TEST_F(Flight, ChangesOfSpeedActOnTheFlightUnderWay)
{
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

TEST_F(Flight, AStoppedRunLeavesTheCardWhereItIs)
{
    recorded.inYield = [](int round) {
        if (round == 10)
            stopRun();
    };
    moveCardTo(1, 900, 600);
    EXPECT_NEAR(session.box[1].left, 101.5, 1e-9);
    EXPECT_EQ(session.box[1].top, 200);
    EXPECT_FALSE(session.run.cardPlaced[1]);
    EXPECT_THROW(moveCardTo(1, 40000, 0), RuntimeError);
}

TEST_F(Flight, ACentreIsReachedInWholePixels)
{
    session.box[1].width = 81;
    session.run.animationSpeed = 10;
    moveCardTo(1, 500, 300);
    EXPECT_EQ(session.box[1].left, 460); // 459.5 goes to the even neighbour
    EXPECT_EQ(session.box[1].top, 270);
    EXPECT_TRUE(session.run.cardPlaced[1]);
    EXPECT_EQ(session.cardStack.fromBelow().back(), 1);
}
