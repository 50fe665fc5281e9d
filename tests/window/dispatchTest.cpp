#include "window/dispatch.h"

#include "core/mainView.h"
#include "core/menu.h"
#include "core/session.h"
#include "support/freshStart.h"

#include <QFile>

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

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

QStringList wordsOfTheMenus()
{
    QStringList words;
    for (int menu = 0; menu <= lastHeading; ++menu) {
        for (int line = 0; line <= session.menu.menuLastItem[menu]; ++line)
            words.append(session.menu.menuItemCaption[menu][line]);
    }
    return words;
}

} // namespace

TEST_F(Dispatch, EveryLineOfTheMenusIsKnownAndHasItsPicture)
{
    for (const QString& word : wordsOfTheMenus())
        EXPECT_TRUE(QFile::exists(u":/pictures/%1.svg"_s.arg(pictureOf(word)))) << word.toStdString();
}

TEST_F(Dispatch, ALineIsGreyUntilItsCommandExists)
{
    for (int menu = 0; menu <= lastHeading; ++menu) {
        openMenu(menu);
        for (int line = 0; line <= session.menu.menuLastItem[menu]; ++line) {
            const QString word = session.menu.menuItemCaption[menu][line];
            EXPECT_EQ(lineIsEnabled(line), menuLine(word)->command != nullptr) << word.toStdString();
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
    choose("Print...");
    EXPECT_TRUE(session.board.searchTitle.visible);
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

TEST_F(Dispatch, EachWordLeavesItsMarkInGraphOnScreen)
{
    const QStringList untouched = {u"Save"_s, u"Save As..."_s, u"Print..."_s, u"Undo"_s,
                                   u"Cut"_s,  u"Copy"_s,       u"Paste"_s,    u"Select All"_s};
    for (const QString& word : wordsOfTheMenus() + untouched + QStringList(u"Data Map..."_s)) {
        const int mark = untouched.contains(word) ? asItWas : word == u"Make Graph..."_s ? 1 : 0;
        EXPECT_EQ(menuLine(word)->graphOnScreen, mark) << word.toStdString();
    }
}

TEST_F(Dispatch, RefusesWhereThereAreTooFewOrTooManyCards)
{
    struct Case {
        const char* word;
        int cards;
        const char* message; // null if the command is not refused
        int graphOnScreen;
    };
    const Case cases[] = {
        {"Report...", 0,
         "Making Reports|Sorry! You need to add a card or enter values before you can make Reports.", 0},
        {"Report...", 1, nullptr, 0},
        {"Statistics...", 0,
         "Making Statistics|Sorry! You need to add a card or enter values before you can make Statistics.",
         0},
        {"Make Graph...", 41,
         "Making Graphs|Sorry! You can make graphs up to 40 cards. Delete some cards and try again.", 1},
        {"Make Graph...", 0,
         "Making Graphs|Sorry! You need to add a card or enter values before you can make Graphs.", 1},
    };
    for (const auto& [word, cards, message, graphOnScreen] : cases) {
        recorded.messages.clear();
        recorded.beeps = 0;
        session.numCards = cards;
        session.graph.graphOnScreen = 7;
        if (!message)
            recorded.dialogSteps.push_back([](QDialog&) {});
        runCommand(QLatin1String(word));
        EXPECT_EQ(recorded.messages.join(u'/'), QLatin1String(message)) << word << cards;
        EXPECT_EQ(recorded.beeps, message ? 1 : 0) << word << cards;
        EXPECT_EQ(session.graph.graphOnScreen, graphOnScreen) << word << cards;
    }
}

TEST_F(Dispatch, KnowsWordsThatStandInNoMenu)
{
    runCommand(u"Data Map..."_s);
    EXPECT_EQ(recorded.beeps, 1);
    EXPECT_THAT(
        recorded.messages,
        ElementsAre(
            u"Information|This feature is currently not available. It will be in the final release."_s));
    recorded = {};
    for (const char* word :
         {"Save", "Save As...", "Undo", "Cut", "Copy", "Paste", "Select All", "sort...", ""})
        runCommand(QLatin1String(word));
    EXPECT_THAT(recorded.messages, IsEmpty());
}

TEST_F(Dispatch, AChangedCaptionIsAChangedCommand)
{
    session.menu.menuItemCaption[0][0] = u"Data Map..."_s;
    openMenu(0);
    dispatchLine(0);
    EXPECT_EQ(recorded.messages.size(), 1);
}
