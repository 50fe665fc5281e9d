// The file dialog, opened by chooseDatabase and used with mouse and keys.
#include "database/FileForm.h"

#include "controls/forms.h"
#include "core/session.h"
#include "database/chooseDatabase.h"
#include "store/settings.h"
#include "support/dialogs.h"
#include "support/files.h"
#include "support/slowMount.h"

#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 10000; // milliseconds
const QString cancelled = u"Cancel"_s;

class ChoosingADatabase : public Fresh {
protected:
    ChoosingADatabase()
    {
        desktop.files.volumes = [] {
            return QList<Volume>{{u"(HOME)"_s, testFolder() + u"home"_s, 3},
                                 {u"(CDROM)"_s, testFolder() + u"no disc"_s, 5}};
        };
        makeFolders({"home/class 1/", "home/class 2/pets/", "home/zoo/"});
        database(u"home/zoo"_s);
        database(u"home/class 2/pets"_s);
    }

    static void makeFolders(const QStringList& folders)
    {
        for (const QString& folder : folders)
            ASSERT_TRUE(QDir().mkpath(testFolder() + folder));
    }

    static void database(const QString& folder)
    {
        QFile description(testFolder() + folder + u"/db-info.tdb"_s);
        ASSERT_TRUE(description.open(QIODevice::WriteOnly));
    }

    /// Opens the dialog in the home folder, runs the pupil's actions and returns the choice, relative to the
    /// test's folder.
    static QString chosen(const std::function<void(FileForm&)>& act)
    {
        inDialog<FileForm>(act);
        const QString path = chooseDatabase(testFolder() + u"home"_s);
        return path.startsWith(testFolder()) ? path.mid(testFolder().size()) : path;
    }

    /// Waits for a slot with this content, such as "Dir class 1", and returns its number.
    static QToolButton* icon(FileForm& files, const QString& tag, const QString& name)
    {
        QToolButton* found = nullptr;
        const auto look = [&] {
            for (QToolButton* candidate : files.iconBox) {
                if (candidate->isVisible() && candidate->accessibleName() == name + u", "_s + tag)
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

TEST_F(ChoosingADatabase, OKWaitsForADatabaseAndAMissingDiscIsTold)
{
    EXPECT_EQ(chosen([](FileForm& files) {
                  QTest::mouseClick(icon(files, "folder", "class 1"), Qt::LeftButton);
                  EXPECT_EQ(files.SelectedFnameBox->text(), QString());
                  EXPECT_FALSE(files.answers->ok->isEnabled());
                  icon(files, "database", "zoo");
                  QTest::mouseClick(files.fileNameBox[2], Qt::LeftButton);
                  EXPECT_EQ(files.SelectedFnameBox->text(), u"zoo"_s);
                  QTest::mouseClick(icon(files, "folder", "class 1"), Qt::LeftButton);
                  EXPECT_TRUE(files.iconBox[2]->isChecked() && !files.iconBox[0]->isChecked());
                  EXPECT_EQ(files.focusWidget(), files.iconBox[2]);
                  press(files, "OKbut");
                  EXPECT_FALSE(files.isVisible());
              }),
              u"home/zoo"_s);
}

TEST_F(ChoosingADatabase, TheDrivesAreAboveEveryRootAndAMissingDiscIsTold)
{
    EXPECT_EQ(chosen([](FileForm& files) {
                  EXPECT_TRUE(comesTo(files, u"(HOME)"_s));
                  press(files, "upFoldBut");
                  EXPECT_TRUE(comesTo(files, u"My Computer"_s));
                  doubleClick(files, "drive", "(CDROM)");
                  EXPECT_TRUE(QTest::qWaitFor([] { return !recorded.messages.isEmpty(); }, patience));
                  EXPECT_EQ(recorded.messages.last(), u"Error|Make sure the disc is in the drive!"_s);
                  doubleClick(files, "drive", "(HOME)");
                  icon(files, "database", "zoo");
                  press(files.fileNameBox[2]);
                  EXPECT_EQ(files.SelectedFnameBox->text(), u"zoo"_s);
                  press(files, "OKbut");
              }),
              u"home/zoo"_s);
    EXPECT_EQ(session.dialogResult, u"OK"_s);
    EXPECT_FALSE(isLoaded<FileForm>());
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
                  EXPECT_TRUE(comesTo(files, u"class 1"_s)); // an empty folder
                  press(Qt::Key_Backspace);
                  EXPECT_TRUE(comesTo(files, u"(HOME)"_s));
                  icon(files, "database", "zoo");
                  press(Qt::Key_Right);
                  press(Qt::Key_Right);
                  press(Qt::Key_Right); // there is no further item
                  press(Qt::Key_Space);
                  EXPECT_EQ(files.SelectedFnameBox->text(), u"zoo"_s);
                  press(Qt::Key_Return);
              }),
              u"home/zoo"_s);
}

TEST_F(ChoosingADatabase, TheSliderMovesByOneItem)
{
    for (int i = 1; i <= 12; ++i)
        makeFolders({u"home/folder %1"_s.arg(i, 2, 10, '0'_L1)});
    chosen([](FileForm& files) {
        icon(files, "folder", "class 1");
        EXPECT_EQ(files.Fslide->maximum(), 13);
        files.iconBox[7]->setFocus();
        QTest::keyClick(files.iconBox[7], Qt::Key_Right);
        EXPECT_EQ(files.Fslide->value(), 1);
        EXPECT_EQ(files.focusWidget(), files.iconBox[7]);
        EXPECT_EQ(files.fileNameBox[0]->text(), u"class 2"_s);
        QTest::keyClick(files.iconBox[7], Qt::Key_End);
        EXPECT_EQ(files.fileNameBox[1]->text(), u"zoo"_s);
        EXPECT_FALSE(files.iconBox[2]->isVisible());
        press(files, "CancelBut");
    });
}

TEST_F(ChoosingADatabase, TheSystemsChooserAnswersOnlyWhenAFolderWasChosen)
{
    recorded.chosen = {testFolder() + u"home/class 1"_s, QString()};
    const auto browse = [](FileForm& files) { press(files, "StdDiBoxBut"); };
    EXPECT_EQ(chosen(browse), u"home/class 1"_s);
    EXPECT_EQ(session.dialogResult, u"DBOK"_s);
    EXPECT_EQ(chosen([&](FileForm& files) {
                  doubleClick(files, "folder", "class 2");
                  QTest::mouseClick(icon(files, "database", "pets"), Qt::LeftButton);
                  browse(files);
                  EXPECT_EQ(files.F1, u"0"_s);
                  EXPECT_TRUE(files.isVisible());
                  press(files, "OKbut");
              }),
              u"home/class 2/pets"_s);
}

TEST_F(ChoosingADatabase, TheSettingsGiveTheWorkingFolderAndKeepPupilsInIt)
{
    desktop.files.documentsFolder = []() -> QString { return testFolder() + u"home/class 2"_s; };
    setting("Working Dir", "Path", u"MyDocs"_s);
    setting("UpLevel", "Status", u"True"_s);
    EXPECT_EQ(chosen([](FileForm& files) {
                  icon(files, "database", "pets");
                  EXPECT_FALSE(files.upFoldBut->isEnabled());
                  EXPECT_FALSE(files.StdDiBoxBut->isEnabled());
                  QTest::keyClick(files.focusWidget(), Qt::Key_Backspace);
                  doubleClick(files, "database", "pets");
              }),
              u"home/class 2/pets"_s);

    setting("Working Dir", "Path", testFolder() + u"gone"_s);
    const QString documents = testFolder() + u"home/new pupil"_s;
    desktop.files.documentsFolder = [documents] { return documents; };
    EXPECT_EQ(chosen([](FileForm& files) {
                  EXPECT_TRUE(
                      QTest::qWaitFor([&] { return files.CurDirBox->text() == u"new pupil"_s; }, patience));
                  press(files, "CancelBut");
              }),
              cancelled);
    EXPECT_EQ(recorded.messages, QStringList(u"Error|Path not found"_s));
    putFile(documents + u" 2"_s, "no folder can be made here");
    desktop.files.documentsFolder = [documents] { return documents + u" 2/documents"_s; };
    EXPECT_EQ(chosen([](FileForm& files) {
                  EXPECT_TRUE(QTest::qWaitFor([&] { return files.folder() == QDir::homePath(); }, patience));
                  press(files, "CancelBut");
              }),
              cancelled);
}

TEST_F(ChoosingADatabase, AQuickDoubleClickInASlowFolderNeverEntersADatabase)
{
    SlowMount slow(200, testFolder() + u"home"_s);
    if (slow.path().isEmpty())
        GTEST_SKIP() << slow.reason().toStdString();
    setting("Working Dir", "Path", slow.path());
    inDialog<FileForm>([](FileForm& files) {
        doubleClick(files, "folder", "zoo"); // not known yet to be a database
        EXPECT_TRUE(QTest::qWaitFor([&] { return !files.isVisible(); }, patience));
    });
    EXPECT_EQ(chooseDatabase({}), slow.path() + u"/zoo"_s);

    inDialog<FileForm>([&](FileForm& files) {
        slow.hold(); // Cancel must not wait for a folder that no longer answers
        press(files, "CancelBut");
    });
    EXPECT_EQ(chooseDatabase({}), cancelled);
}
