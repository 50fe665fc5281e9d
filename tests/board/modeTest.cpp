#include "board/mode.h"

#include "core/mainView.h"
#include "core/session.h"
#include "support/freshStart.h"

using namespace Qt::StringLiterals;

using Mode = Fresh;

TEST_F(Mode, OfCardsHidesTableGraphAndCaptionsAndGivesTheBoardItsColour)
{
    session.table.panel.visible = session.table.editBox.visible = session.window.MSChart.visible = true;
    session.board.VennBox.visible = session.board.VennLeftCircle.visible =
        session.board.VennRightCircle.visible = true;
    session.board.searchTitle.visible = session.board.otherTitle.visible = true;
    session.board.groupTitle[12].visible = true;
    session.board.groupTitle[12].text = u"cats"_s;
    session.board.colour = u"0"_s;
    session.options.BCol = u"255"_s;
    session.window.btnTable.pressed = true;

    showCardMode();

    EXPECT_TRUE(session.window.btnCards.pressed);
    EXPECT_FALSE(session.window.btnTable.pressed);
    EXPECT_FALSE(session.table.panel.visible || session.table.editBox.visible ||
                 session.window.MSChart.visible);
    EXPECT_FALSE(session.board.VennBox.visible || session.board.VennLeftCircle.visible ||
                 session.board.VennRightCircle.visible);
    EXPECT_FALSE(session.board.searchTitle.visible || session.board.otherTitle.visible ||
                 session.board.groupTitle[12].visible);
    EXPECT_EQ(session.board.groupTitle[12].text, u"Group Label"_s);
    EXPECT_EQ(session.board.colour, u"255"_s);
}

TEST_F(Mode, OfTheTableFillsItAndHidesTheGraph)
{
    int filled = 0;
    mainView.showTable = [&] {
        ++filled;
        session.table.panel.visible = true;
    };
    session.window.MSChart.visible = true;
    setMode(u"table"_s);
    EXPECT_EQ(filled, 1);
    EXPECT_TRUE(session.table.panel.visible);
    EXPECT_FALSE(session.window.MSChart.visible);
}

TEST_F(Mode, ShowsAnErrorAndStopsThere)
{
    mainView.showTable = [] { throw RuntimeError(outOfRange); };
    setMode(u"table"_s);
    EXPECT_EQ(recorded.messages, QStringList(u"Error|Subscript out of range"_s));
}
