#include "core/menu.h"

#include "core/session.h"
#include "support/freshStart.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

class Menu : public Fresh {
protected:
    Menu() { fillMenuTables(); }
};

std::vector<bool> enabledLines()
{
    std::vector<bool> enabled;
    for (int line = 0; line <= session.menu.menuLastItem[session.menu.openMenuIndex]; ++line)
        enabled.push_back(session.menu.menuCaption[line].enabled);
    return enabled;
}

} // namespace

TEST_F(Menu, OnlyALineInStateShowIsEnabledAndItsStateCountsWhenTheMenuOpens)
{
    session.menu.menuItemState[0][2] = u"IfSelect"_s;
    session.menu.menuItemState[1][1] = u"Don'tShow"_s;
    openMenu(0);
    EXPECT_THAT(enabledLines(), ElementsAre(true, true, false, true));
    openMenu(1);
    EXPECT_THAT(enabledLines(), ElementsAre(true, false, true, true, true));
    session.menu.menuItemState[1][1] = u"Show"_s;
    EXPECT_FALSE(session.menu.menuCaption[1].enabled);
    hoverHeading(1);
    EXPECT_TRUE(session.menu.menuCaption[1].enabled);
}

TEST_F(Menu, AClickOpensAndAClickOnTheOpenOneClosesAndKeepsTheFrame)
{
    session.board.SelectBox.visible = true;
    clickHeading(2);
    EXPECT_TRUE(session.menu.MenuHolder.visible);
    EXPECT_EQ(session.menu.openMenuIndex, 2);
    clickHeading(0);
    EXPECT_EQ(session.menu.openMenuIndex, 0);
    clickHeading(0);
    EXPECT_FALSE(session.menu.MenuHolder.visible);
    EXPECT_EQ(session.menu.openMenuIndex, -1);
    EXPECT_TRUE(session.board.SelectBox.visible);

    clickHeading(0);
    closeMenu();
    EXPECT_FALSE(session.menu.MenuHolder.visible);
    EXPECT_EQ(session.menu.openMenuIndex, -1);
    EXPECT_FALSE(session.board.SelectBox.visible);
}
