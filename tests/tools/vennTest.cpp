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

TEST_F(Venn, ACardThatChangesItsRegionInTheMiddleDividesByNothing)
{
    cards({QStringLiteral("a"), QStringLiteral("a")});
    recorded.inYield = [](int) { session.cardValue[2][1] = QStringLiteral("b"); };
    runVenn([] {});
    EXPECT_NEAR(centre(2).x(), 402 + 277.5, 1);
    EXPECT_TRUE(recorded.messages.isEmpty());
}
