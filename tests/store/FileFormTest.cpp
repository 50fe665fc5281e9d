// The file dialog as a child meets it: through chooseDatabase, with mouse and keys.
#include "store/FileForm.h"

#include "core/session.h"
#include "platform/forms.h"
#include "store/chooseDatabase.h"
#include "store/settings.h"
#include "support/freshStart.h"
#include "support/slowMount.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QToolButton>

namespace {

constexpr int patience = 10000; // milliseconds
const QString cancelled = QStringLiteral("Cancel");

class ChoosingADatabase : public Fresh {
protected:
    ChoosingADatabase()
    {
        desktop.volumes = [] {
            return QList<Volume>{{QStringLiteral("(HOME)"), testFolder() + QStringLiteral("home"), 3},
                                 {QStringLiteral("(CDROM)"), testFolder() + QStringLiteral("no disc"), 5}};
        };
        makeFolders({"home/class 1/", "home/class 2/pets/", "home/zoo/"});
        database(QStringLiteral("home/zoo"));
        database(QStringLiteral("home/class 2/pets"));
    }

    static void makeFolders(const QStringList& folders)
    {
        for (const QString& folder : folders)
            ASSERT_TRUE(QDir().mkpath(testFolder() + folder));
    }

    static void database(const QString& folder)
    {
        QFile description(testFolder() + folder + QStringLiteral("/db-info.tdb"));
        ASSERT_TRUE(description.open(QIODevice::WriteOnly));
    }

    /// Opens the dialog in the home folder, has the pupil act, and gives what was chosen, below the test's
    /// folder.
    static QString chosen(const std::function<void(FileForm&)>& act)
    {
        recorded.dialogSteps.push_back([act](QDialog& dialog) {
            auto& files = dynamic_cast<FileForm&>(dialog);
            act(files);
        });
        const QString path = chooseDatabase(testFolder() + QStringLiteral("home"));
        return path.startsWith(testFolder()) ? path.mid(testFolder().size()) : path;
    }

    /// The slot that shows this, "Dir class 1", as soon as it does.
    static QToolButton* icon(FileForm& files, const QString& tag, const QString& name)
    {
        QToolButton* found = nullptr;
        const auto look = [&] {
            for (QToolButton* candidate : files.iconBox) {
                if (candidate->isVisible() &&
                    candidate->accessibleName() == name + QStringLiteral(", ") + tag)
                    found = candidate;
            }
            return found != nullptr;
        };
        EXPECT_TRUE(QTest::qWaitFor(look, patience)) << name.toStdString();
        if (found == nullptr)
            found = files.iconBox[0];
        return found;
    }

    static void doubleClick(FileForm& files, const QString& kind, const QString& name)
    {
        QTest::mouseDClick(icon(files, kind, name), Qt::LeftButton);
    }

    static void click(FileForm& files, const char* button)
    {
        QTest::mouseClick(files.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    }

    static bool comesTo(FileForm& files, const QString& place)
    {
        return QTest::qWaitFor([&] { return files.CurDirBox->text() == place; }, patience);
    }

    static void setting(const char* section, const char* key, const QString& value)
    {
        writeSetting(settingsFile(), QLatin1String(section), QLatin1String(key), value);
    }
};

} // namespace

TEST_F(ChoosingADatabase, ADoubleClickOpensADatabaseAndWalksIntoAFolder)
{
    EXPECT_EQ(chosen([](FileForm& files) { doubleClick(files, "database", "zoo"); }),
              QStringLiteral("home/zoo"));
    EXPECT_EQ(session.dialogResult, QStringLiteral("OK"));
    EXPECT_FALSE(isLoaded<FileForm>());

    EXPECT_EQ(chosen([](FileForm& files) {
                  doubleClick(files, "folder", "class 2");
                  doubleClick(files, "database", "pets");
              }),
              QStringLiteral("home/class 2/pets"));
}

TEST_F(ChoosingADatabase, OKTakesWhatIsChosenAndNothingElse)
{
    EXPECT_EQ(chosen([](FileForm& files) {
                  QTest::mouseClick(icon(files, "folder", "class 1"), Qt::LeftButton);
                  EXPECT_EQ(files.SelectedFnameBox->text(), QString());
                  click(files, "OKbut");
                  EXPECT_TRUE(files.isVisible());
                  icon(files, "database", "zoo");
                  QTest::mouseClick(files.fileNameBox[2], Qt::LeftButton);
                  EXPECT_EQ(files.SelectedFnameBox->text(), QStringLiteral("zoo"));
                  click(files, "OKbut");
                  EXPECT_FALSE(files.isVisible());
              }),
              QStringLiteral("home/zoo"));
}

TEST_F(ChoosingADatabase, TheDrivesAreAboveEveryRootAndAMissingDiscIsTold)
{
    EXPECT_EQ(chosen([](FileForm& files) {
                  EXPECT_TRUE(comesTo(files, QStringLiteral("(HOME)")));
                  click(files, "upFoldBut");
                  EXPECT_TRUE(comesTo(files, QStringLiteral("My Computer")));
                  doubleClick(files, "drive", "(CDROM)");
                  EXPECT_TRUE(QTest::qWaitFor([] { return !recorded.messages.isEmpty(); }, patience));
                  EXPECT_EQ(recorded.messages.last(),
                            QStringLiteral("Error|Make sure the disc is in the drive!"));
                  EXPECT_EQ(files.CurDirBox->text(), QStringLiteral("My Computer"));
                  doubleClick(files, "drive", "(HOME)");
                  doubleClick(files, "database", "zoo");
              }),
              QStringLiteral("home/zoo"));
}

TEST_F(ChoosingADatabase, TheKeyboardDoesItAll)
{
    EXPECT_EQ(chosen([](FileForm& files) {
                  const auto press = [&](int key) { QTest::keyClick(files.focusWidget(), Qt::Key(key)); };
                  icon(files, "database", "zoo");
                  EXPECT_EQ(files.focusWidget(), files.iconBox[0]);
                  press(Qt::Key_Right);
                  press(Qt::Key_Left);
                  press(Qt::Key_Return);
                  EXPECT_TRUE(comesTo(files, QStringLiteral("class 1"))); // which is empty
                  press(Qt::Key_Backspace);
                  EXPECT_TRUE(comesTo(files, QStringLiteral("(HOME)")));
                  icon(files, "database", "zoo");
                  press(Qt::Key_Right);
                  press(Qt::Key_Right);
                  press(Qt::Key_Right); // nothing further
                  press(Qt::Key_Space);
                  EXPECT_EQ(files.SelectedFnameBox->text(), QStringLiteral("zoo"));
                  press(Qt::Key_Return);
              }),
              QStringLiteral("home/zoo"));
}

TEST_F(ChoosingADatabase, TheSliderMovesByOneItem)
{
    for (int i = 1; i <= 12; ++i)
        makeFolders({QStringLiteral("home/folder %1").arg(i, 2, 10, QLatin1Char('0'))});
    chosen([](FileForm& files) {
        icon(files, "folder", "class 1");
        EXPECT_EQ(files.Fslide->maximum(), 13);
        files.iconBox[7]->setFocus();
        QTest::keyClick(files.iconBox[7], Qt::Key_Right);
        EXPECT_EQ(files.Fslide->value(), 1);
        EXPECT_EQ(files.focusWidget(), files.iconBox[7]);
        EXPECT_EQ(files.fileNameBox[0]->text(), QStringLiteral("class 2"));
        QTest::keyClick(files.iconBox[7], Qt::Key_End);
        EXPECT_EQ(files.fileNameBox[1]->text(), QStringLiteral("zoo"));
        EXPECT_FALSE(files.iconBox[2]->isVisible());
        click(files, "CancelBut");
    });
}

TEST_F(ChoosingADatabase, TheSystemsChooserAnswersEvenWhenNothingWasChosen)
{
    recorded.chosen = {testFolder() + QStringLiteral("home/class 1"), QString()};
    const auto browse = [](FileForm& files) { click(files, "StdDiBoxBut"); };
    EXPECT_EQ(chosen(browse), QStringLiteral("home/class 1"));
    EXPECT_EQ(session.dialogResult, QStringLiteral("DBOK"));
    EXPECT_EQ(chosen(browse), QStringLiteral("home"));
}

TEST_F(ChoosingADatabase, TheSettingsGiveTheWorkingFolderAndKeepPupilsInIt)
{
    desktop.documentsFolder = []() -> QString { return testFolder() + QStringLiteral("home/class 2"); };
    setting("Working Dir", "Path", QStringLiteral("MyDocs"));
    setting("UpLevel", "Status", QStringLiteral("True"));
    EXPECT_EQ(chosen([](FileForm& files) {
                  icon(files, "database", "pets");
                  EXPECT_FALSE(files.upFoldBut->isEnabled());
                  EXPECT_FALSE(files.StdDiBoxBut->isEnabled());
                  QTest::keyClick(files.focusWidget(), Qt::Key_Backspace);
                  doubleClick(files, "database", "pets");
              }),
              QStringLiteral("home/class 2/pets"));

    setting("Working Dir", "Path", testFolder() + QStringLiteral("gone"));
    EXPECT_EQ(chosen([](FileForm& files) {
                  EXPECT_TRUE(QTest::qWaitFor([&] { return !files.isVisible(); }, patience));
              }),
              cancelled);
    EXPECT_EQ(recorded.messages.last(), QStringLiteral("Error|Path not found"));
}

TEST_F(ChoosingADatabase, AQuickDoubleClickInASlowFolderNeverEntersADatabase)
{
    const SlowMount slow(200, testFolder() + QStringLiteral("home"));
    if (slow.path().isEmpty())
        GTEST_SKIP() << slow.reason().toStdString();
    setting("Working Dir", "Path", slow.path());
    recorded.dialogSteps.push_back([](QDialog& dialog) {
        auto& files = dynamic_cast<FileForm&>(dialog);
        doubleClick(files, "folder", "zoo"); // it isn't known yet what it is
        EXPECT_TRUE(QTest::qWaitFor([&] { return !files.isVisible(); }, patience));
    });
    EXPECT_EQ(chooseDatabase({}), slow.path() + QStringLiteral("/zoo"));

    QElapsedTimer clock;
    recorded.dialogSteps.push_back([&](QDialog& dialog) {
        clock.start();
        click(dynamic_cast<FileForm&>(dialog), "CancelBut");
    });
    EXPECT_EQ(chooseDatabase({}), cancelled);
    EXPECT_LT(clock.elapsed(), 200);
}
