#include "core/dispatch.h"

#include "core/menu.h"
#include "core/screen.h"
#include "core/session.h"
#include "support/freshStart.h"

#include <QFile>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Dispatch : public Fresh {
protected:
    Dispatch()
    {
        fillMenuTables();
        screen.setRefresh = [this](const QString& word) { refresh.append(word); };
        session.SelectBox.visible = true;
        session.pullDownBut.visible = true;
        session.AnswerHolder.visible = true;
        session.searchTitle.visible = true;
    }

    /// Chooses the word's line in the menu that has it.
    void choose(const char* word)
    {
        for (int menu = 0; menu <= lastHeading; ++menu) {
            for (int line = 0; line <= session.menuLastItem[menu]; ++line) {
                if (session.menuItemCaption[menu][line] != QLatin1String(word))
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
        for (int line = 0; line <= session.menuLastItem[menu]; ++line)
            words.append(session.menuItemCaption[menu][line]);
    }
    return words;
}

} // namespace

TEST_F(Dispatch, EveryLineOfTheMenusIsKnownAndHasItsPicture)
{
    for (const QString& word : wordsOfTheMenus())
        EXPECT_TRUE(QFile::exists(QStringLiteral(":/pictures/%1.svg").arg(pictureOf(word))))
            << word.toStdString();
}

TEST_F(Dispatch, TheseWordsStillWaitForTheirCommand)
{
    QStringList waiting;
    for (const QString& word : wordsOfTheMenus()) {
        if (!menuLine(word)->command)
            waiting.append(word);
    }
    EXPECT_EQ(waiting.join(QLatin1Char('|')),
              QStringLiteral("Print...|Make Graph...|Report...|Statistics...|Help"));
}

TEST_F(Dispatch, EveryCommandFirstClearsTheTableAndClosesTheMenu)
{
    choose("Delete Card");
    EXPECT_THAT(refresh, ElementsAre(QStringLiteral("Off")));
    EXPECT_FALSE(session.pullDownBut.visible);
    EXPECT_FALSE(session.AnswerHolder.visible);
    EXPECT_FALSE(session.searchTitle.visible);
    EXPECT_FALSE(session.MenuHolder.visible);
    EXPECT_FALSE(session.SelectBox.visible);
    EXPECT_EQ(session.openMenuIndex, -1);
}

TEST_F(Dispatch, PrintingKeepsTheCaptionsOnTheBoard)
{
    choose("Print...");
    EXPECT_TRUE(session.searchTitle.visible);
}

TEST_F(Dispatch, AGreyLineLeavesTheMenuOpenAndTheRefreshOff)
{
    session.menuItemState[1][1] = QStringLiteral("Don'tShow");
    session.graphOnScreen = 1;
    choose("Delete Card");
    EXPECT_THAT(refresh, ElementsAre(QStringLiteral("Off")));
    EXPECT_FALSE(session.searchTitle.visible);
    EXPECT_TRUE(session.MenuHolder.visible);
    EXPECT_TRUE(session.SelectBox.visible);
    EXPECT_EQ(session.openMenuIndex, 1);
    EXPECT_EQ(session.graphOnScreen, 1);
    EXPECT_FALSE(session.BigBin.visible);
}

TEST_F(Dispatch, EachWordLeavesItsMarkInGraphOnScreen)
{
    const QStringList untouched = {QStringLiteral("Save"),     QStringLiteral("Save As..."),
                                   QStringLiteral("Print..."), QStringLiteral("Undo"),
                                   QStringLiteral("Cut"),      QStringLiteral("Copy"),
                                   QStringLiteral("Paste"),    QStringLiteral("Select All")};
    for (const QString& word : wordsOfTheMenus() + untouched + QStringList(QStringLiteral("Data Map..."))) {
        const int mark = untouched.contains(word) ? asItWas : word == QStringLiteral("Make Graph...") ? 1 : 0;
        EXPECT_EQ(menuLine(word)->graphOnScreen, mark) << word.toStdString();
    }
}

TEST_F(Dispatch, RefusesWhereThereAreTooFewOrTooManyCards)
{
    struct Case {
        const char* word;
        int cards;
        const char* message; // null: not refused
        int graphOnScreen;
    };
    const Case cases[] = {
        {"Report...", 0,
         "Making Reports|Sorry! You need to add a card or enter values before you can make Reports.", 0},
        {"Report...", 1, nullptr, 0},
        {"Statistics...", 0,
         "Making Statistics|Sorry! You need to add a card or enter values before you can make Statistics.",
         0},
        {"Statistics...", 1, nullptr, 0},
        {"Make Graph...", 41,
         "Making Graphs|Sorry! You can make graphs up to 40 cards. Delete some cards and try again.", 1},
        {"Make Graph...", 40, nullptr, 1},
    };
    for (const auto& [word, cards, message, graphOnScreen] : cases) {
        recorded.messages.clear();
        recorded.beeps = 0;
        session.numCards = cards;
        session.graphOnScreen = 7;
        choose(word);
        EXPECT_EQ(recorded.messages.join(QLatin1Char('/')), QLatin1String(message)) << word << cards;
        EXPECT_EQ(recorded.beeps, message ? 1 : 0) << word << cards;
        EXPECT_EQ(session.graphOnScreen, graphOnScreen) << word << cards;
    }
}

TEST_F(Dispatch, KnowsWordsThatStandInNoMenu)
{
    runCommand(QStringLiteral("Data Map..."));
    EXPECT_EQ(recorded.beeps, 1);
    EXPECT_THAT(
        recorded.messages,
        ElementsAre(QStringLiteral(
            "Information|This feature is currently not available. It will be in the final release.")));
    recorded = {};
    for (const char* word :
         {"Save", "Save As...", "Undo", "Cut", "Copy", "Paste", "Select All", "sort...", ""})
        runCommand(QLatin1String(word));
    EXPECT_THAT(recorded.messages, IsEmpty());
}

TEST_F(Dispatch, AChangedCaptionIsAChangedCommand)
{
    session.menuItemCaption[0][0] = QStringLiteral("Data Map...");
    openMenu(0);
    dispatchLine(0);
    EXPECT_EQ(recorded.messages.size(), 1);
}
