#include "tools/finding.h"

#include "core/mainView.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

using namespace Qt::StringLiterals;

namespace {

class Finding : public Fresh {
protected:
    Finding()
    {
        mainView.showSpeedWindow = [] { speedChosen(9); };
        for (int row = 0; row < 3; ++row)
            session.findRow[row] = {u"1"_s, u"Name"_s, u"includes"_s, QString(QChar(char16_t(u'a' + row)))};
    }
};

} // namespace

TEST_F(Finding, AStoppedRunStillCountsAndAnUnknownRuleMovesNothing)
{
    cards({u"a"_s, u"a"_s});
    recorded.inYield = [](int round) {
        if (round == 2)
            stopRun();
    };
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
