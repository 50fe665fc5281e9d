#include "core/mainSettings.h"

#include "core/session.h"
#include "core/startValues.h"
#include "store/settings.h"
#include "support/freshStart.h"

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
    EXPECT_EQ(session.boardColour, QStringLiteral("&H8000000F"));
    EXPECT_EQ(session.keysValue, QStringLiteral("K"));
    EXPECT_EQ(session.txtShow, QStringLiteral("False"));
    EXPECT_EQ(session.RefreshBox, QString());
    EXPECT_EQ(session.ColText, QStringLiteral("0"));
    EXPECT_TRUE(session.refreshCheck.visible && session.PicRef.visible);
    EXPECT_FALSE(session.cmdQuestion.visible);
    EXPECT_FALSE(session.caseSensitive);
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

    EXPECT_EQ(session.txtShow, QStringLiteral("True"));
    EXPECT_FALSE(session.refreshCheck.visible || session.PicRef.visible);
    EXPECT_EQ(session.ColText, QStringLiteral("255"));
    EXPECT_EQ(session.borderColour, QStringLiteral("16711680"));
    EXPECT_EQ(session.databaseStatus, QStringLiteral("RO"));
    EXPECT_EQ(session.BCol, QStringLiteral("65280"));
    EXPECT_EQ(session.boardColour, session.BCol);
    EXPECT_EQ(session.keysValue, QStringLiteral("Q"));
    EXPECT_TRUE(session.caseSensitive);
    EXPECT_TRUE(session.cmdQuestion.visible);
    EXPECT_EQ(session.txtDBLock, QStringLiteral("1"));
    EXPECT_EQ(session.txtDelRandomCard, QStringLiteral("0"));
}

TEST_F(MainSettings, AWordThatIsNoStatusChangesNothing)
{
    session.caseSensitive = true;
    set("CaseSens", "Status", "perhaps");
    set("Database", "Status", "ro");
    loadMainSettings();
    EXPECT_TRUE(session.caseSensitive);
    EXPECT_EQ(session.databaseStatus, QStringLiteral("RW"));
    EXPECT_EQ(session.Dbs, QStringLiteral("ro"));
}

TEST_F(MainSettings, APrinterThatIsGoneIsToldAndTheRestIsRead)
{
    desktop.printerNames = [] { return QStringList{QStringLiteral("Hall"), QStringLiteral("Office")}; };
    desktop.defaultPrinterName = [] { return QStringLiteral("Office"); };
    const std::vector<std::tuple<const char*, int, bool>> cases = {
        {"-1", -1, false}, {"0", 0, false}, {"1", 1, false}, {"2", 1, true}, {"-2", 1, true}};
    for (const auto& [choice, index, told] : cases) {
        recorded.messages.clear();
        session.keysValue.clear();
        set("Printer", "Name", choice);
        loadMainSettings();
        EXPECT_EQ(session.Printercombo.listIndex, index) << choice;
        EXPECT_EQ(recorded.messages,
                  told ? QStringList(QStringLiteral("Error|Invalid property value")) : QStringList());
        EXPECT_EQ(session.keysValue, QStringLiteral("K"));
    }
}

TEST_F(MainSettings, TheStartValuesMakeTheStatusWritableAgainAndKeepTheOptions)
{
    set("Database", "Status", "RO");
    set("Keys", "Value", "Q");
    loadMainSettings();
    session.cardValue[5][1] = QStringLiteral("left over");
    setStartValues();
    EXPECT_EQ(session.databaseStatus, QStringLiteral("RW"));
    EXPECT_EQ(session.keysValue, QStringLiteral("Q"));
    EXPECT_EQ(session.SelectBox.width, 86);
    EXPECT_EQ(session.SelectBox.height, 66);
    EXPECT_EQ(session.sortDirection, QStringLiteral("ABC"));
    EXPECT_EQ(session.printScale, 0.08);
    EXPECT_TRUE(session.cardValue[5][1].isEmpty());
}
