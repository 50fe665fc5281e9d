// The help window and the installation of the tutorials.
#include "core/mainView.h"
#include "core/session.h"
#include "guidance/FrmHelp.h"
#include "guidance/frmVids.h"
#include "guidance/helpCommand.h"
#include "support/dialogs.h"
#include "support/files.h"
#include "support/rar.h"

#include <QDir>

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString question = u"Confirm|It appears you have not installed the Video Tutorials.\n"
                         "Would you like to install them now?"_s;

class Help : public Fresh {
protected:
    Help()
    {
        QDir(testFolder()).mkdir(u"Videos"_s);
        mainView.installTutorials = installTutorials;
    }

    /// Chooses an option of the window and presses OK.
    static void choose(int number)
    {
        auto& dialog = form<FrmHelp>();
        dialog.show();
        part<QRadioButton>(dialog, ("Option" + std::to_string(number)).c_str()).click();
        press(dialog, "YesBut");
    }

    /// Waits until the installation has closed its window.
    static void waitForInstallation()
    {
        inDialog<frmVids>([](frmVids&) {
            EXPECT_TRUE(recorded.busy);
            EXPECT_TRUE(QTest::qWaitFor([] { return !isLoaded<frmVids>(); }));
        });
    }
};

} // namespace

TEST_F(Help, AMissingVideoIsInstalledAndPlayedAtTheSecondPress)
{
    putFile(inTestFolder(u"Videos/Videos.rar"_s), rarOf({{"Oview.exe", "#!/bin/sh", 0100755}}));
    recorded.answers = {false, true};
    choose(2);
    waitForInstallation();
    choose(2);
    EXPECT_THAT(
        recorded.messages,
        ElementsAre(question, question,
                    u"Information|Videos have now been installed. Please try playing the videos again."_s));
    EXPECT_THAT(recorded.started, IsEmpty());
    EXPECT_TRUE(isLoaded<FrmHelp>() && !recorded.busy);
    choose(2);
    EXPECT_THAT(recorded.started, ElementsAre(inTestFolder(u"Videos/Oview.exe /shc"_s)));
}

TEST_F(Help, AFailedInstallationIsOneBoxAndEndsInOrder)
{
    recorded.answers = {true};
    waitForInstallation();
    choose(3);
    EXPECT_THAT(recorded.messages, ElementsAre(question, u"Error|\"Videos.rar\" was not found."_s));
    EXPECT_TRUE(isLoaded<FrmHelp>() && !recorded.busy);
}

TEST_F(Help, EscapeGivesTheInstallationUp)
{
    putFile(inTestFolder(u"Videos/Videos.rar"_s), rarOf({{"Oview.exe", "#!/bin/sh", 0100755}}));
    inDialog<frmVids>([](frmVids& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    installTutorials();
    EXPECT_FALSE(isLoaded<frmVids>() || recorded.busy);
    EXPECT_THAT(recorded.messages, IsEmpty());
}

TEST_F(Help, AVideoThatCannotBeStartedSaysSo)
{
    putFile(inTestFolder(u"Videos/Finding Cards.exe"_s), "#!/bin/sh");
    desktop.programs.start = [](const QString&, const QStringList&) { throw RuntimeError(fileNotFound); };
    choose(6);
    EXPECT_THAT(
        recorded.messages,
        ElementsAre(u"Help|Sorry! The video \"Finding Cards\" is here, but this computer can't start it."_s));
    EXPECT_TRUE(isLoaded<FrmHelp>());
}

TEST_F(Help, OkWorksOnlyForAChoiceInView)
{
    putFile(inTestFolder(u"Version.txt"_s), "CHANGES\r\n\r\n\xE2\x80\xA2 Find");
    auto& dialog = form<FrmHelp>();
    dialog.show();
    const auto& ok = part(dialog, "YesBut");
    EXPECT_FALSE(ok.isEnabled());
    dialog.options[3]->click();
    EXPECT_TRUE(ok.isEnabled());
    dialog.newsPage->trigger();
    EXPECT_TRUE(dialog.RTFNew->isVisible() && !dialog.F1->isVisible() && !ok.isEnabled());
    EXPECT_EQ(dialog.RTFNew->toPlainText(), u"CHANGES\n\n• Find"_s);
    dialog.helpPage->trigger();
    EXPECT_TRUE(!dialog.RTFNew->isVisible() && dialog.F1->isVisible() && ok.isEnabled());
}

TEST_F(Help, ReturnAndADoubleClickChooseAndStart)
{
    putFile(inTestFolder(u"Videos/Newdb.exe"_s), "#!/bin/sh");
    auto& dialog = form<FrmHelp>();
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(dialog.options[3], Qt::Key_Return);
    QCoreApplication::processEvents();
    form<FrmHelp>().show();
    QTest::mouseClick(form<FrmHelp>().options[3], Qt::LeftButton, {}, {12, 12});
    QTest::mouseDClick(form<FrmHelp>().options[3], Qt::LeftButton, {}, {12, 12});
    QCoreApplication::processEvents();
    EXPECT_EQ(recorded.started, QStringList(2, inTestFolder(u"Videos/Newdb.exe /shc"_s)));
}

TEST_F(Help, TheCommandGivesTheBoardItsColourBack)
{
    session.board.colour = u"255"_s;
    session.options.BCol = u"16711680"_s;
    inDialog<FrmHelp>([](FrmHelp& dialog) {
        EXPECT_EQ(session.board.colour, session.options.BCol);
        EXPECT_EQ(dialog.RTFNew->toPlainText(), u"Version Info NOT Found!"_s);
        dialog.reject();
    });
    helpCommand();
    EXPECT_FALSE(isLoaded<FrmHelp>());
}
