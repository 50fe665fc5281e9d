#include "editing/NewForm.h"

#include "core/screen.h"
#include "core/title.h"
#include "editing/DesignForm.h"
#include "editing/newCommand.h"
#include "platform/fittedLabel.h"
#include "platform/forms.h"
#include "store/settings.h"
#include "support/files.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

namespace {

const QString documents = QStringLiteral("Documents");

/// Clicks a button and lets what that has put off happen.
void press(QAbstractButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
    QCoreApplication::processEvents();
}

QPushButton* finishButton(const NewForm& wizard)
{
    return wizard.findChild<QPushButton*>(QStringLiteral("BtnOK"));
}

QString lastDatabase()
{
    return readSetting(settingsFile(), QStringLiteral("Last DB"), QStringLiteral("Path"),
                       QStringLiteral("absent"));
}

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

    /// Runs the wizard with a pupil who does this in it.
    static void wizard(const std::function<void(NewForm&)>& step)
    {
        recorded.dialogSteps.push_front([step](QDialog& dialog) { step(dynamic_cast<NewForm&>(dialog)); });
        makeNewDatabase();
    }

    /// What the pupil does in the design dialog that follows.
    static void thenDesign(const std::function<void(DesignForm&)>& step)
    {
        recorded.dialogSteps.push_back([step](QDialog& dialog) { step(dynamic_cast<DesignForm&>(dialog)); });
    }

    static QStringList madeFolders()
    {
        return QDir(inTestFolder(documents)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }
};

TEST_F(NewDatabase, IsMadeDesignedAndOpenLikeAnyOther)
{
    session.numFields = 7;
    session.numCards = 5;
    session.databaseStatus = QStringLiteral("RO");
    session.menuItemState[1][1] = QStringLiteral("Don'tShow");
    session.backgroundPicture = QStringLiteral("map.bmp");
    session.fieldName[1] = QStringLiteral("left over");
    for (ControlState* control :
         {&session.MenuTop[1], &session.MenuTop[3], &session.refreshCheck, &session.btnTable})
        control->enabled = false;

    wizard([](NewForm& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("New Database Wizard"));
        EXPECT_TRUE(dialog.F1->isVisible());
        EXPECT_FALSE(finishButton(dialog)->isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_EQ(dialog.focusWidget(), dialog.DBName);
        QTest::keyClicks(dialog.DBName, QStringLiteral("Our pets"));
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCoreApplication::processEvents();
        EXPECT_EQ(dialog.lblCap->text(), QStringLiteral("New Database Location"));
        EXPECT_EQ(dialog.lblSubCap->text(), QStringLiteral("Please select a location for your database:"));

        const QString path = inTestFolder(QStringLiteral("Documents/Our pets"));
        thenDesign([path](DesignForm& design) {
            EXPECT_EQ(session.dbPath, path);
            EXPECT_TRUE(QFileInfo(path).isDir());
            EXPECT_EQ(lastDatabase(), path);
            EXPECT_EQ(design.fieldName[3]->text(), QStringLiteral("fieldname3"));
            QTest::keyClick(&design, Qt::Key_Escape);
        });
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(bytesOf(inTestFolder(QStringLiteral("Documents/Our pets/db-info.tdb"))),
              " 3 \r\n 0 "
              "\r\n\"none\"\r\n\"fieldname1\"\r\n\"Abc\"\r\nFalse\r\n\"fieldname2\"\r\n\"Abc\"\r\nFalse\r\n"
              "\"fieldname3\"\r\n\"Abc\"\r\nFalse\r\nRW\r\nVER=\"1.1.0\"\r\n");
    EXPECT_EQ(session.numCards, 0);
    EXPECT_EQ(session.selectedCard, 1);
    for (const ControlState& control :
         {session.MenuTop[1], session.MenuTop[3], session.refreshCheck, session.btnTable})
        EXPECT_TRUE(control.enabled);
    EXPECT_EQ(session.menuItemState[0][2], QStringLiteral("Show"));
    EXPECT_EQ(session.menuItemState[1][1], QStringLiteral("Show"));
    EXPECT_EQ(session.title, QStringLiteral("Our pets - Tallymoor") + titleEnding());
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(NewDatabase, NeedsANameAndKeepsItOnTheWayBack)
{
    wizard([](NewForm& dialog) {
        goToLocation(dialog, QString());
        EXPECT_EQ(recorded.messages,
                  QStringList(QStringLiteral("Error|You must enter a name for your database.")));
        EXPECT_EQ(recorded.beeps, 1);
        EXPECT_TRUE(dialog.F2->isVisible());
        EXPECT_EQ(dialog.focusWidget(), dialog.DBName);

        QTest::keyClicks(dialog.DBName, QStringLiteral("Zoo"));
        press(dialog.N2);
        EXPECT_TRUE(dialog.F3->isVisible());
        EXPECT_TRUE(finishButton(dialog)->isEnabled());
        EXPECT_FALSE(dialog.N2->isVisible());
        press(dialog.B2);
        EXPECT_EQ(dialog.lblCap->text(), QStringLiteral("New Database Name"));
        EXPECT_EQ(dialog.DBName->selectedText(), QStringLiteral("Zoo"));
        EXPECT_FALSE(finishButton(dialog)->isEnabled());
        EXPECT_FALSE(dialog.B2->isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(session.dialogResult, QStringLiteral("Cancel"));
    EXPECT_TRUE(madeFolders().isEmpty());
    EXPECT_TRUE(session.dbPath.isEmpty());
}

TEST_F(NewDatabase, DoesNotTouchAFolderThatIsThere)
{
    const QString path = inTestFolder(QStringLiteral("Documents/Zoo"));
    const QString warning = QStringLiteral("Warning|The folder '") + path +
                            QStringLiteral("' already exist. You have the following choices:\n"
                                           "I. Rename the folder to another name.\n"
                                           "II. Remove the folder to another location.\n"
                                           "III. Use another name for your database.");
    QDir().mkdir(path);
    session.dbPath = QStringLiteral("/still/open");
    wizard([&](NewForm& dialog) {
        goToLocation(dialog, QStringLiteral("Zoo"));
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
        press(dialog.findChild<QPushButton*>(QStringLiteral("Btncancel")));
    });
    EXPECT_EQ(session.dbPath, QStringLiteral("/still/open"));
    EXPECT_EQ(lastDatabase(), QStringLiteral("absent"));
}

TEST_F(NewDatabase, GoesWhereThePupilOrTheSettingsSay)
{
    const QString school = inTestFolder(QStringLiteral("school"));
    QDir().mkdir(school);
    const auto closeDesign = [](DesignForm& design) { QTest::keyClick(&design, Qt::Key_Escape); };
    wizard([&](NewForm& dialog) {
        EXPECT_EQ(dialog.LblCustDir->text(),
                  QStringLiteral("The Database will be created in 'My Documents' folder of this computer.\n"
                                 "You can change the path in 'Teacher Options'"));
        goToLocation(dialog, QStringLiteral("A"));
        press(dialog.Option2);
        recorded.chosen.push_back(QString());
        press(finishButton(dialog));
        EXPECT_EQ(recorded.messages,
                  QStringList(QStringLiteral("Warning|You have not selected a directory. "
                                             "Click on Finish or select another option.")));
        EXPECT_TRUE(dialog.F3->isVisible());
        recorded.chosen.push_back(school + QLatin1Char('/'));
        thenDesign(closeDesign);
        press(finishButton(dialog));
    });
    EXPECT_EQ(session.dbPath, school + QStringLiteral("/A"));

    writeSetting(settingsFile(), QStringLiteral("Working Dir"), QStringLiteral("Path"), school);
    wizard([&](NewForm& dialog) {
        EXPECT_EQ(dialog.LblCustDir->text(),
                  QStringLiteral("The Database will be created in: '") + school +
                      QStringLiteral("'\nYou can change the path in 'Teacher Options'"));
        goToLocation(dialog, QStringLiteral("Łąka 🐞"));
        thenDesign(closeDesign);
        press(finishButton(dialog));
    });
    EXPECT_TRUE(QFile::exists(school + QStringLiteral("/Łąka 🐞/db-info.tdb")));
}

TEST_F(NewDatabase, AFolderThatCannotBeMadeEndsInTheErrorBoxAndTheWizardStays)
{
    const struct {
        QString name;
        const char* message;
    } cases[] = {
        {QStringLiteral("cats/dogs"), "Path/File access error"},
        {QStringLiteral("a\\b"), "Path/File access error"},
        {QStringLiteral("who?"), "Path/File access error"},
        {QStringLiteral(".."), "Path/File access error"},
        {QStringLiteral("  "), "Path/File access error"},
        {QString(300, QLatin1Char('x')), "Path not found"},
    };
    for (const auto& [name, message] : cases) {
        recorded.messages.clear();
        wizard([&](NewForm& dialog) {
            goToLocation(dialog, name);
            press(finishButton(dialog));
            EXPECT_EQ(recorded.messages, QStringList(QStringLiteral("Error|") + QLatin1String(message)));
            EXPECT_TRUE(dialog.F3->isVisible());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        EXPECT_TRUE(madeFolders().isEmpty());
        EXPECT_EQ(lastDatabase(), QStringLiteral("absent"));
    }

    recorded.messages.clear();
    writeSetting(settingsFile(), QStringLiteral("Working Dir"), QStringLiteral("Path"),
                 inTestFolder(QStringLiteral("gone")));
    wizard([](NewForm& dialog) {
        goToLocation(dialog, QStringLiteral("Zoo"));
        press(finishButton(dialog));
    });
    EXPECT_EQ(recorded.messages, QStringList(QStringLiteral("Error|Path not found")));
}

TEST_F(NewDatabase, HelpOffersTheMissingTutorialsAndTheGuide)
{
    int installed = 0;
    screen.installTutorials = [&] { ++installed; };
    wizard([&](NewForm& dialog) {
        press(dialog.BtnVid);
        dialog.mnuFHelp->trigger();
        QCoreApplication::processEvents();
        EXPECT_EQ(recorded.started, QStringList({inTestFolder(QStringLiteral("Videos/Newdb.exe /shc")),
                                                 inTestFolder(QStringLiteral("Help/Newdb.pdf"))}));
        desktop.startProgram = [](const QString&, const QStringList&) { throw RuntimeError(fileNotFound); };
        for (const bool answer : {false, true}) {
            recorded.answers.push_back(answer);
            dialog.mnuFVid->trigger();
            QCoreApplication::processEvents();
            EXPECT_EQ(installed, answer ? 1 : 0);
        }
        EXPECT_EQ(recorded.messages.last(),
                  QStringLiteral("Confirm|It appears you have not installed the Video Tutorials.\n"
                                 "Would you like to install them now?"));
    });
}

TEST_F(NewDatabase, ClosingTheOldOneLeavesAnEmptyBoardAndItsFolderWhenCancelled)
{
    session.dbPath = testFolder().chopped(1);
    session.numCards = 2;
    session.box[2].visible = true;
    session.fieldName[1] = QStringLiteral("Pet");
    session.designReadOnly = true;
    session.MenuTop[1].enabled = true;
    putFile(inTestFolder(QStringLiteral("Answers.txt")), "x");
    recorded.dialogSteps.push_back([](QDialog& dialog) {
        EXPECT_EQ(session.title, titleWithoutDatabase());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    closeDatabase();
    EXPECT_FALSE(QFile::exists(inTestFolder(QStringLiteral("Answers.txt"))));
    EXPECT_FALSE(session.box[2].visible);
    EXPECT_FALSE(session.designReadOnly);
    EXPECT_EQ(session.fieldName[1], QStringLiteral("fieldname1"));
    EXPECT_EQ(session.dbPath, testFolder().chopped(1));
    EXPECT_EQ(session.numCards, 2);
    EXPECT_TRUE(session.MenuTop[1].enabled);
}

TEST_F(NewDatabase, WizardIsWholeOnASmallScreenOnEveryPage)
{
    writeSetting(settingsFile(), QStringLiteral("Working Dir"), QStringLiteral("Path"),
                 QStringLiteral("/a/very/long/way/down").repeated(20));
    wizard([](NewForm& dialog) {
        goToLocation(dialog, QStringLiteral("Zoo"));
        EXPECT_LE(dialog.minimumSizeHint().width(), 950);
        EXPECT_LE(dialog.minimumSizeHint().height(), 560);
        EXPECT_LE(dialog.height(), 560);
    });
}
