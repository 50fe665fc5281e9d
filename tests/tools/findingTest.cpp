#include "tools/finding.h"

#include "core/screen.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

namespace {

class Finding : public Fresh {
protected:
    Finding()
    {
        screen.showSpeedWindow = [] { speedChosen(9); };
        for (int row = 0; row < 3; ++row)
            session.findRow[row] = {QStringLiteral("1"), QStringLiteral("Name"), QStringLiteral("includes"),
                                    QString(QChar(char16_t(u'a' + row)))};
    }
};

} // namespace

TEST_F(Finding, AStoppedRunStillCountsAndAnUnknownRuleMovesNothing)
{
    cards({QStringLiteral("a"), QStringLiteral("a")});
    recorded.inYield = [](int round) {
        if (round == 2)
            stopRun();
    };
    runFind();
    EXPECT_EQ(session.foundCount, 2);
    EXPECT_NEAR(session.box[1].top, 190, 1e-9);
    EXPECT_EQ(session.box[2].top, 200);

    session.andOr[1] = QStringLiteral("and");
    cards({QStringLiteral("a")});
    runFind();
    EXPECT_EQ(session.foundCount, 0);
    EXPECT_EQ(session.box[1].top, 200);
    EXPECT_EQ(session.searchTitle.text, QStringLiteral("Search for: Name includes a and Name includes c "));
}
