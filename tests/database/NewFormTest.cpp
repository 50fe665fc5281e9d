#include "database/NewForm.h"
#include "database/newDatabase.h"

#include "controls/fittedLabel.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/title.h"
#include "editing/DesignForm.h"
#include "editing/newCommand.h"
#include "guidance/tutorial.h"
#include "store/settings.h"
#include "support/dialogs.h"
#include "support/files.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

const QString documents = u"Documents"_s;

QPushButton* finishButton(const NewForm& wizard) { return wizard.findChild<QPushButton*>(u"BtnOK"_s); }

QString lastDatabase() { return readSetting(settingsFile(), u"Last DB"_s, u"Path"_s, u"absent"_s); }

void goToLocation(NewForm& wizard, const QString& name)
{
    press(wizard.N1);
    wizard.DBName->setText(name);
    press(wizard.N2);
}

} // namespace

class NewDatabase : public Fresh {
protected:
    NewDatabase() { QDir(testFolder()).mkdir(documents); }

    /// Runs the wizard with these actions of the pupil.
    static void wizard(const std::function<void(NewForm&)>& step)
    {
        recorded.dialogSteps.push_front([step](QDialog& dialog) { step(dynamic_cast<NewForm&>(dialog)); });
        makeNewDatabase();
    }

    /// The pupil's actions in the design dialog that follows.
    static void thenDesign(const std::function<void(DesignForm&)>& step) { inDialog<DesignForm>(step); }

    static QStringList madeFolders()
    {
        return QDir(inTestFolder(documents)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }
};

TEST_F(NewDatabase, HelpsThenNeedsANameAndKeepsItOnTheWayBack)
{
    mainView.watchTutorial = watchTutorial;
    wizard([](NewForm& dialog) {
        for (QAction* help : part<QToolButton>(dialog, "BtnVid").menu()->actions())
            help->trigger();
        QCoreApplication::processEvents();
        EXPECT_EQ(recorded.started,
                  QStringList({inTestFolder(u"Help/Newdb.pdf"_s), inTestFolder(u"Videos/Newdb.exe /shc"_s)}));
        goToLocation(dialog, QString());
        EXPECT_EQ(recorded.messages, QStringList(u"Error|You must enter a name for your database."_s));
        EXPECT_EQ(recorded.beeps, 1);
        EXPECT_TRUE(dialog.F2->isVisible());
        EXPECT_EQ(dialog.focusWidget(), dialog.DBName);

        QTest::keyClicks(dialog.DBName, u"Zoo"_s);
        press(dialog.N2);
        EXPECT_TRUE(dialog.F3->isVisible());
        EXPECT_TRUE(finishButton(dialog)->isEnabled());
        EXPECT_FALSE(dialog.N2->isVisible());
        press(dialog.B2);
        EXPECT_EQ(dialog.lblCap->text(), u"New Database Name"_s);
        EXPECT_EQ(dialog.DBName->selectedText(), u"Zoo"_s);
        EXPECT_FALSE(finishButton(dialog)->isEnabled());
        EXPECT_FALSE(dialog.B2->isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(session.dialogResult, u"Cancel"_s);
    EXPECT_TRUE(madeFolders().isEmpty());
    EXPECT_TRUE(session.dbPath.isEmpty());
}

TEST_F(NewDatabase, DoesNotTouchAFolderThatIsThere)
{
    const QString path = inTestFolder(u"Documents/Zoo"_s);
    const QString warning = u"Warning|The folder '"_s + path +
                            u"' already exist. You have the following choices:\n"
                            "I. Rename the folder to another name.\n"
                            "II. Remove the folder to another location.\n"
                            "III. Use another name for your database."_s;
    QDir().mkdir(path);
    session.dbPath = u"/still/open"_s;
    wizard([&](NewForm& dialog) {
        goToLocation(dialog, u"Zoo"_s);
        press(finishButton(dialog));
        EXPECT_EQ(recorded.messages, QStringList(warning));
        EXPECT_EQ(recorded.beeps, 1);
        EXPECT_TRUE(dialog.F2->isVisible());
        EXPECT_EQ(dialog.focusWidget(), dialog.DBName);

        press(dialog.N2);
        press(dialog.Option2);
        recorded.chosen.push_back(inTestFolder(documents));
        press(finishButton(dialog));
        EXPECT_EQ(recorded.messages.size(), 2);
        EXPECT_TRUE(dialog.F3->isVisible());
        press(dialog.findChild<QPushButton*>(u"Btncancel"_s));
    });
    EXPECT_EQ(session.dbPath, u"/still/open"_s);
    EXPECT_EQ(lastDatabase(), u"absent"_s);
}

TEST_F(NewDatabase, GoesWhereThePupilOrTheSettingsSay)
{
    const QString school = inTestFolder(u"school"_s);
    QDir().mkdir(school);
    session.numFields = 7;
    session.databaseStatus = u"RO"_s;
    session.menu.menuItemState[1][1] = u"Don'tShow"_s;
    session.menu.MenuTop[3].enabled = session.window.btnTable.enabled = false;
    const auto closeDesign = [](DesignForm& design) {
        EXPECT_EQ(design.fieldName[3]->text(), u"fieldname3"_s);
        QTest::keyClick(&design, Qt::Key_Escape);
    };
    wizard([&](NewForm& dialog) {
        EXPECT_EQ(dialog.LblCustDir->text(),
                  u"The Database will be created in 'My Documents' folder of this computer.\n"
                  "You can change the path in 'Teacher Options'"_s);
        goToLocation(dialog, u"A"_s);
        press(dialog.Option2);
        recorded.chosen.push_back(QString());
        press(finishButton(dialog));
        EXPECT_EQ(recorded.messages, QStringList(u"Warning|You have not selected a directory. "
                                                 "Click on Finish or select another option."_s));
        EXPECT_TRUE(dialog.F3->isVisible());
        recorded.chosen.push_back(school + u'/');
        thenDesign(closeDesign);
        press(finishButton(dialog));
    });
    EXPECT_EQ(session.dbPath, school + u"/A"_s);
    EXPECT_EQ(lastDatabase(), session.dbPath);
    EXPECT_TRUE(session.menu.MenuTop[3].enabled && session.window.btnTable.enabled) << "open like any other";
    EXPECT_EQ(session.menu.menuItemState[0][2] + session.menu.menuItemState[1][1], u"ShowShow"_s);
    EXPECT_TRUE(bytesOf(school + u"/A/db-info.tdb"_s).startsWith(" 3 \r\n 0 \r\n\"none\"\r\n\"fieldname1\""));

    writeSetting(settingsFile(), u"Working Dir"_s, u"Path"_s, school);
    wizard([&](NewForm& dialog) {
        EXPECT_EQ(dialog.LblCustDir->text(), u"The Database will be created in: '"_s + school +
                                                 u"'\nYou can change the path in 'Teacher Options'"_s);
        goToLocation(dialog, u"Łąka 🐞"_s);
        thenDesign(closeDesign);
        press(finishButton(dialog));
    });
    EXPECT_TRUE(QFile::exists(school + u"/Łąka 🐞/db-info.tdb"_s));
}

TEST_F(NewDatabase, AFolderThatCannotBeMadeEndsInTheErrorBoxAndTheWizardStays)
{
    const struct {
        QString name;
        const char* message;
    } cases[] = {
        {u"cats/dogs"_s, "Path/File access error"}, {u"a\\b"_s, "Path/File access error"},
        {u"who?"_s, "Path/File access error"},      {u".."_s, "Path/File access error"},
        {u"  "_s, "Path/File access error"},        {u".pets"_s, "Path/File access error"},
        {QString(300, u'x'), "Path not found"},
    };
    for (const auto& [name, message] : cases) {
        recorded.messages.clear();
        wizard([&](NewForm& dialog) {
            goToLocation(dialog, name);
            press(finishButton(dialog));
            EXPECT_EQ(recorded.messages, QStringList(u"Error|"_s + QLatin1String(message)));
            EXPECT_TRUE(dialog.F3->isVisible());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        EXPECT_TRUE(madeFolders().isEmpty());
        EXPECT_EQ(lastDatabase(), u"absent"_s);
    }

    recorded.messages.clear();
    writeSetting(settingsFile(), u"Working Dir"_s, u"Path"_s, inTestFolder(u"gone"_s));
    wizard([](NewForm& dialog) {
        goToLocation(dialog, u"Zoo"_s);
        press(finishButton(dialog));
    });
    EXPECT_EQ(recorded.messages, QStringList(u"Error|Path not found"_s));
    EXPECT_EQ(newDatabasePath(u"/school"_s, u"Pets \u00A0 "_s), u"/school/Pets"_s);
}

TEST_F(NewDatabase, ClosingTheOldOneLeavesAnEmptyBoardAndItsFolderWhenCancelled)
{
    session.dbPath = testFolder().chopped(1);
    session.numCards = 2;
    session.box[2].visible = true;
    session.fieldName[1] = u"Pet"_s;
    session.design.ChkRD = true;
    session.menu.MenuTop[1].enabled = true;
    for (const char* name : {"Answers.txt", "db-info.tdb"})
        putFile(inTestFolder(QLatin1String(name)), "x");
    recorded.dialogSteps.push_back([](QDialog& dialog) {
        EXPECT_EQ(session.window.title, titleWithoutDatabase());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    newCommand();
    EXPECT_FALSE(QFile::exists(inTestFolder(u"Answers.txt"_s)));
    EXPECT_FALSE(session.box[2].visible);
    EXPECT_FALSE(session.design.ChkRD);
    EXPECT_EQ(session.fieldName[1], u"fieldname1"_s);
    EXPECT_EQ(session.dbPath, testFolder().chopped(1));
    EXPECT_EQ(session.numCards, 2);
    EXPECT_TRUE(session.menu.MenuTop[1].enabled);
}
