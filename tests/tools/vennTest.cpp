#include "tools/venn.h"

#include "core/screen.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

namespace {

class Venn : public Fresh {
protected:
    Venn()
    {
        screen.showSpeedWindow = [] { speedChosen(9); };
        session.findRow[0] = {QStringLiteral("1"), QStringLiteral("Name"), QStringLiteral("includes"),
                              QStringLiteral("a")};
        session.findRow[1] = {QStringLiteral("1"), QStringLiteral("Name"), QStringLiteral("includes"),
                              QStringLiteral("b")};
        session.andOr[0] = QStringLiteral("and");
        session.vennTick = true;
    }

    static QPointF centre(int card)
    {
        const CardImage& image = session.box[card];
        return {image.left + image.width / 2, image.top + image.height / 2};
    }
};

} // namespace

TEST_F(Venn, EachCardFliesToItsRegion)
{
    cards({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("ab"), QStringLiteral("-"),
           QStringLiteral("a"), QStringLiteral("ab")});
    session.foundCount = 77;
    runVenn([] {});

    // Board 1000 by 700: circles of 555 at top 121, the left one at 132, the right one at 402.
    const double r = 277.5;
    EXPECT_EQ(session.VennRightCircle.left, 402);
    EXPECT_NEAR(centre(1).x(), 132 + r, 1); // the first of an arc stands at the bottom
    EXPECT_NEAR(centre(1).y(), 121 + r + (r - 60), 1);
    EXPECT_NEAR(centre(2).x(), 402 + r, 1);
    EXPECT_LT(centre(5).x(), 132 + r);
    EXPECT_NEAR(centre(3).x(), (132 + 402 + 2 * r) / 2, 1);
    EXPECT_NEAR(centre(3).y(), 121 + 30 + 0.4 * r, 1);
    EXPECT_NEAR(centre(6).y() - centre(3).y(), 0.5 * (1.2 * r - 30), 1.5);
    EXPECT_EQ(centre(4), QPointF(80, 121));

    EXPECT_EQ(session.cardStack.fromBelow()[0], 5);
    EXPECT_EQ(session.cardStack.fromBelow().back(), 6);
    EXPECT_EQ(session.searchTitle.text, QStringLiteral("Name includes a"));
    EXPECT_EQ(session.otherTitle.text, QStringLiteral("Name includes b"));
    EXPECT_EQ(session.foundCount, 77);
    EXPECT_FALSE(session.vennTick);
}

TEST_F(Venn, ACardThatChangesItsRegionInTheMiddleDividesByNothing)
{
    cards({QStringLiteral("a"), QStringLiteral("a")});
    recorded.inYield = [](int) { session.cardValue[2][1] = QStringLiteral("b"); };
    runVenn([] {});
    EXPECT_NEAR(centre(2).x(), 402 + 277.5, 1);
    EXPECT_TRUE(recorded.messages.isEmpty());
}
