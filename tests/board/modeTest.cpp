#include "board/mode.h"

#include "core/screen.h"
#include "core/session.h"
#include "support/freshStart.h"

using Mode = Fresh;

TEST_F(Mode, OfCardsHidesTableGraphAndCaptionsAndGivesTheBoardItsColour)
{
    session.tablePanel.visible = session.editBox.visible = session.MSChart.visible = true;
    session.VennBox.visible = session.VennLeftCircle.visible = session.VennRightCircle.visible = true;
    session.searchTitle.visible = session.otherTitle.visible = true;
    session.GroupLabel[12].visible = true;
    session.GroupLabel[12].text = QStringLiteral("cats");
    session.boardColour = QStringLiteral("0");
    session.BCol = QStringLiteral("255");
    session.btnTable.pressed = true;

    showCardMode();

    EXPECT_TRUE(session.btnCards.pressed);
    EXPECT_FALSE(session.btnTable.pressed);
    EXPECT_FALSE(session.tablePanel.visible || session.editBox.visible || session.MSChart.visible);
    EXPECT_FALSE(session.VennBox.visible || session.VennLeftCircle.visible ||
                 session.VennRightCircle.visible);
    EXPECT_FALSE(session.searchTitle.visible || session.otherTitle.visible || session.GroupLabel[12].visible);
    EXPECT_EQ(session.GroupLabel[12].text, QStringLiteral("Group Label"));
    EXPECT_EQ(session.boardColour, QStringLiteral("255"));
}

TEST_F(Mode, OfTheTableFillsItAndHidesTheGraph)
{
    int filled = 0;
    screen.showTable = [&] {
        ++filled;
        session.tablePanel.visible = true;
    };
    session.MSChart.visible = true;
    setMode(QStringLiteral("table"));
    EXPECT_EQ(filled, 1);
    EXPECT_TRUE(session.tablePanel.visible);
    EXPECT_FALSE(session.MSChart.visible);
}

TEST_F(Mode, ShowsAnErrorAndStopsThere)
{
    screen.showTable = [] { throw RuntimeError(outOfRange); };
    setMode(QStringLiteral("table"));
    EXPECT_EQ(recorded.messages, QStringList(QStringLiteral("Error|Subscript out of range")));
}
