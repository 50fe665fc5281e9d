#include "tools/grouping.h"

#include "core/screen.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

namespace {

class Grouping : public Fresh {
protected:
    Grouping()
    {
        screen.showSpeedWindow = [] { speedChosen(9); };
    }
};

} // namespace

TEST_F(Grouping, OfNoCardsShowsOtherAloneAcrossTheBoard)
{
    cards({});
    buildGroups(1);
    moveCardsToGroups(1);
    EXPECT_EQ(session.GroupLabel[0].left, 0);
    EXPECT_EQ(session.GroupLabel[0].width, 1000);
    EXPECT_TRUE(recorded.messages.isEmpty());
}
