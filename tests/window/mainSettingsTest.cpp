#include "window/mainSettings.h"

#include "core/session.h"
#include "store/settings.h"
#include "support/freshStart.h"
#include "window/startValues.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

class MainSettings : public Fresh {
protected:
    static void set(const char* section, const char* key, const char* value)
    {
        writeSetting(settingsFile(), QLatin1String(section), QLatin1String(key), QLatin1String(value));
    }
};

TEST_F(MainSettings, WithoutAFileEveryOptionHasItsDefault)
{
    loadMainSettings();
    EXPECT_EQ(session.board.colour, u"&H8000000F"_s);
    EXPECT_EQ(session.options.keysValue, u"K"_s);
    EXPECT_EQ(session.options.txtShow, u"False"_s);
    EXPECT_EQ(session.options.RefreshBox, QString());
    EXPECT_EQ(session.options.ColText, u"0"_s);
    EXPECT_TRUE(session.window.refreshCheck.visible && session.window.PicRef.visible);
    EXPECT_FALSE(session.window.cmdQuestion.visible);
    EXPECT_FALSE(session.options.caseSensitive);
    EXPECT_THAT(recorded.messages, IsEmpty());
}

TEST_F(MainSettings, EveryOptionTakesEffect)
{
    set("Startup", "State", "True");
    set("Refresh", "Visible", "1");
    set("Cards", "Colour", "255");
    set("Border", "Colour", "16711680");
    set("Database", "Status", "RO");
    set("Background", "Colour", "65280");
    set("Keys", "Value", "Q");
    set("CaseSens", "Status", "True");
    set("Clue", "Status", "1");
    set("LockDB", "Status", "1");
    set("DeleteCard", "Random", "0");

    loadMainSettings();
    rereadDeleteOption();

    EXPECT_EQ(session.options.txtShow, u"True"_s);
    EXPECT_FALSE(session.window.refreshCheck.visible || session.window.PicRef.visible);
    EXPECT_EQ(session.options.ColText, u"255"_s);
    EXPECT_EQ(session.board.borderColour, u"16711680"_s);
    EXPECT_EQ(session.databaseStatus, u"RO"_s);
    EXPECT_EQ(session.options.BCol, u"65280"_s);
    EXPECT_EQ(session.board.colour, session.options.BCol);
    EXPECT_EQ(session.options.keysValue, u"Q"_s);
    EXPECT_TRUE(session.options.caseSensitive);
    EXPECT_TRUE(session.window.cmdQuestion.visible);
    EXPECT_EQ(session.options.txtDBLock, u"1"_s);
    EXPECT_EQ(session.options.txtDelRandomCard, u"0"_s);
}

TEST_F(MainSettings, AWordThatIsNoStatusChangesNothing)
{
    session.options.caseSensitive = true;
    set("CaseSens", "Status", "perhaps");
    set("Database", "Status", "ro");
    loadMainSettings();
    EXPECT_TRUE(session.options.caseSensitive);
    EXPECT_EQ(session.databaseStatus, u"RW"_s);
    EXPECT_EQ(session.options.Dbs, u"ro"_s);
}

TEST_F(MainSettings, APrinterThatIsGoneIsToldAndTheRestIsRead)
{
    desktop.paper.printerNames = [] { return QStringList{u"Hall"_s, u"Office"_s}; };
    desktop.paper.defaultPrinterName = [] { return u"Office"_s; };
    const std::vector<std::tuple<const char*, int, bool>> cases = {
        {"-1", -1, false}, {"0", 0, false}, {"1", 1, false}, {"2", 1, true}, {"-2", 1, true}};
    for (const auto& [choice, index, told] : cases) {
        recorded.messages.clear();
        session.options.keysValue.clear();
        set("Printer", "Name", choice);
        loadMainSettings();
        EXPECT_EQ(session.paper.Printercombo.listIndex, index) << choice;
        EXPECT_EQ(recorded.messages, told ? QStringList(u"Error|Invalid property value"_s) : QStringList());
        EXPECT_EQ(session.options.keysValue, u"K"_s);
    }
}

TEST_F(MainSettings, TheStartValuesMakeTheStatusWritableAgainAndKeepTheOptions)
{
    set("Database", "Status", "RO");
    set("Keys", "Value", "Q");
    loadMainSettings();
    session.cardValue[5][1] = u"left over"_s;
    setStartValues();
    EXPECT_EQ(session.databaseStatus, u"RW"_s);
    EXPECT_EQ(session.options.keysValue, u"Q"_s);
    EXPECT_EQ(session.board.SelectBox.width, 86);
    EXPECT_EQ(session.board.SelectBox.height, 66);
    EXPECT_EQ(session.sortDirection, u"ABC"_s);
    EXPECT_EQ(session.paper.printScale, 0.08);
    EXPECT_TRUE(session.cardValue[5][1].isEmpty());
}
