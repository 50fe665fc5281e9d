#include "tools/grouping.h"

#include "core/mainView.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

namespace {

class Grouping : public Fresh {
protected:
    Grouping()
    {
        mainView.showSpeedWindow = [] { speedChosen(9); };
    }
};

} // namespace

TEST_F(Grouping, OfNoCardsShowsOtherAloneAcrossTheBoard)
{
    cards({});
    buildGroups(1);
    moveCardsToGroups(1);
    EXPECT_EQ(session.board.groupTitle[0].left, 0);
    EXPECT_EQ(session.board.groupTitle[0].width, 1000);
    EXPECT_TRUE(recorded.messages.isEmpty());
}
