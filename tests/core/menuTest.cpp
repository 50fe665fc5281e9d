#include "core/menu.h"

#include "core/session.h"
#include "support/freshStart.h"

using testing::ElementsAre;

namespace {

class Menu : public Fresh {
protected:
    Menu() { fillMenuTables(); }
};

std::vector<bool> enabledLines()
{
    std::vector<bool> enabled;
    for (int line = 0; line <= session.menuLastItem[session.openMenuIndex]; ++line)
        enabled.push_back(session.menuCaption[line].enabled);
    return enabled;
}

} // namespace

TEST_F(Menu, OnlyALineInStateShowIsEnabledAndItsStateCountsWhenTheMenuOpens)
{
    session.menuItemState[0][2] = QStringLiteral("IfSelect");
    session.menuItemState[1][1] = QStringLiteral("Don'tShow");
    openMenu(0);
    EXPECT_THAT(enabledLines(), ElementsAre(true, true, false, true));
    openMenu(1);
    EXPECT_THAT(enabledLines(), ElementsAre(true, false, true, true, true));
    session.menuItemState[1][1] = QStringLiteral("Show");
    EXPECT_FALSE(session.menuCaption[1].enabled);
    hoverHeading(1);
    EXPECT_TRUE(session.menuCaption[1].enabled);
}

TEST_F(Menu, AClickOpensAndAClickOnTheOpenOneClosesAndKeepsTheFrame)
{
    session.SelectBox.visible = true;
    clickHeading(2);
    EXPECT_TRUE(session.MenuHolder.visible);
    EXPECT_EQ(session.openMenuIndex, 2);
    clickHeading(0);
    EXPECT_EQ(session.openMenuIndex, 0);
    clickHeading(0);
    EXPECT_FALSE(session.MenuHolder.visible);
    EXPECT_EQ(session.openMenuIndex, -1);
    EXPECT_TRUE(session.SelectBox.visible);

    clickHeading(0);
    closeMenu();
    EXPECT_FALSE(session.MenuHolder.visible);
    EXPECT_EQ(session.openMenuIndex, -1);
    EXPECT_FALSE(session.SelectBox.visible);
}
