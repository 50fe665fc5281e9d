#include "window/dispatch.h"

#include "core/mainView.h"
#include "core/menu.h"
#include "core/session.h"
#include "support/freshStart.h"

#include <QFile>

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

class Dispatch : public Fresh {
protected:
    Dispatch()
    {
        fillMenuTables();
        mainView.setRefresh = [this](const QString& word) { refresh.append(word); };
        session.board.SelectBox.visible = true;
        session.menu.pullDownBut.visible = true;
        session.menu.AnswerHolder.visible = true;
        session.board.searchTitle.visible = true;
    }

    /// Chooses the word's line in its menu.
    void choose(const char* word)
    {
        for (int menu = 0; menu <= lastHeading; ++menu) {
            for (int line = 0; line <= session.menu.menuLastItem[menu]; ++line) {
                if (session.menu.menuItemCaption[menu][line] != QLatin1String(word))
                    continue;
                openMenu(menu);
                dispatchLine(line);
                return;
            }
        }
        FAIL() << word;
    }

    QStringList refresh;
};

} // namespace

TEST_F(Dispatch, EveryLineOfTheMenusIsKnownAndHasItsPicture)
{
    for (int menu = 0; menu <= lastHeading; ++menu) {
        for (int line = 0; line <= session.menu.menuLastItem[menu]; ++line) {
            const QString icon = pictureOf(session.menu.menuItemCaption[menu][line]);
            EXPECT_TRUE(QFile::exists(u":/pictures/%1.svg"_s.arg(icon))) << menu << ' ' << line;
        }
    }
}

TEST_F(Dispatch, ASecondPressOfALineDoesNothing)
{
    choose("Delete Card");
    session.board.BigBin.visible = false;
    dispatchLine(1);
    EXPECT_FALSE(session.board.BigBin.visible);
}

TEST_F(Dispatch, EveryCommandFirstClearsTheTableAndClosesTheMenu)
{
    choose("Delete Card");
    EXPECT_THAT(refresh, ElementsAre(u"Off"_s));
    EXPECT_FALSE(session.menu.pullDownBut.visible);
    EXPECT_FALSE(session.menu.AnswerHolder.visible);
    EXPECT_FALSE(session.board.searchTitle.visible);
    EXPECT_FALSE(session.menu.MenuHolder.visible);
    EXPECT_FALSE(session.board.SelectBox.visible);
    EXPECT_EQ(session.menu.openMenuIndex, -1);
}

TEST_F(Dispatch, PrintingKeepsTheCaptionsOnTheBoard)
{
    session.board.searchTitle.visible = true;
    recorded.dialogSteps.push_back([](QDialog& dialog) { EXPECT_EQ(dialog.windowTitle(), u"Print"_s); });
    choose("Print...");
    EXPECT_TRUE(session.board.searchTitle.visible) << "captions are printed";
}

TEST_F(Dispatch, AGreyLineLeavesTheMenuOpenAndTheRefreshOff)
{
    session.menu.menuItemState[1][1] = u"Don'tShow"_s;
    session.graph.graphOnScreen = 1;
    choose("Delete Card");
    EXPECT_THAT(refresh, ElementsAre(u"Off"_s));
    EXPECT_FALSE(session.board.searchTitle.visible);
    EXPECT_TRUE(session.menu.MenuHolder.visible);
    EXPECT_TRUE(session.board.SelectBox.visible);
    EXPECT_EQ(session.menu.openMenuIndex, 1);
    EXPECT_EQ(session.graph.graphOnScreen, 1);
    EXPECT_FALSE(session.board.BigBin.visible);
}

TEST_F(Dispatch, RefusesAReportOfNoCardsAndAnswersWordsOfNoMenu)
{
    session.numCards = 0;
    session.graph.graphOnScreen = 7;
    choose("Report...");
    EXPECT_EQ(recorded.messages, QStringList(u"Making Reports|Sorry! You need to add a card or enter values "
                                             "before you can make Reports."_s));
    EXPECT_EQ(recorded.beeps, 1);
    EXPECT_EQ(session.graph.graphOnScreen, 0);
    session.graph.graphOnScreen = 7;
    for (const char* word : {"Save", "Undo", "sort...", "", "Data Map..."})
        runCommand(QLatin1String(word));
    EXPECT_EQ(recorded.messages.size(), 2) << "only the data map says anything";
}
