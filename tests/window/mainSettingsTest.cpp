#include "window/mainSettings.h"

#include "core/session.h"
#include "store/settings.h"
#include "support/freshStart.h"
#include "window/startValues.h"

using namespace Qt::StringLiterals;

class MainSettings : public Fresh {
protected:
    static void set(const char* section, const char* key, const char* value)
    {
        writeSetting(settingsFile(), QLatin1String(section), QLatin1String(key), QLatin1String(value));
    }
};

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

// Texts that no other option has show an option that is read into another's place.
TEST_F(MainSettings, TakeEachItsOwnPlaceAndSurviveTheStartValues)
{
    const std::tuple<const char*, const char*, const char*, const QString*> cases[] = {
        {"Startup", "State", "s", &session.options.txtShow},
        {"Refresh", "Visible", "1", &session.options.RefreshBox},
        {"Cards", "Colour", "c", &session.options.ColText},
        {"Border", "Colour", "b", &session.board.borderColour},
        {"Background", "Colour", "g", &session.board.colour},
        {"Keys", "Value", "Q", &session.options.keysValue},
        {"CaseSens", "Status", "True", &session.options.SensBox},
        {"Clue", "Status", "1", &session.options.txtClue},
        {"LockDB", "Status", "l", &session.options.txtDBLock},
        {"DeleteCard", "Random", "d", &session.options.txtDelRandomCard},
    };
    for (const auto& [section, key, value, place] : cases)
        set(section, key, value);
    set("Database", "Status", "RO");
    loadMainSettings();
    rereadDeleteOption();
    EXPECT_EQ(session.databaseStatus, u"RO"_s);
    EXPECT_FALSE(session.window.refreshCheck.visible || session.window.PicRef.visible);
    EXPECT_TRUE(session.options.caseSensitive && session.window.cmdQuestion.visible);
    setStartValues();
    for (const auto& [section, key, value, place] : cases)
        EXPECT_EQ(*place, QLatin1String(value)) << section;
    EXPECT_EQ(session.databaseStatus, u"RW"_s) << "until a database is opened";
    EXPECT_EQ(session.options.BCol, session.board.colour);
}
