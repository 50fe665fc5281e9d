#include "window/startUp.h"

#include "controls/forms.h"
#include "core/session.h"
#include "core/title.h"
#include "store/settings.h"
#include "support/dialogs.h"
#include "window/ExitForm.h"
#include "window/Form1.h"
#include "window/FrmStlogo.h"
#include "window/frmNewDoc.h"
#include "window/shutDown.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

class Start : public Fresh {
protected:
    Start()
    {
        desktop.screen.setBusyPointer = [this](bool busy) { happened.append(busy ? u"busy"_s : u"idle"_s); };
        desktop.clipboard.clear = [this] { happened.append(u"clipboard"_s); };
    }

    static void waitOutSplash(QDialog& dialog)
    {
        auto& splash = dynamic_cast<FrmStlogo&>(dialog);
        EXPECT_EQ(splash.lblVer->text(), releaseName());
        EXPECT_EQ(splash.Timer1->interval(), 2500);
        EXPECT_FALSE(isLoaded<Form1>());
        splash.reject();
        EXPECT_TRUE(splash.isVisible()) << "a pupil can't send it away";
        splash.Timer1->start(1);
        while (isLoaded<FrmStlogo>())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    QStringList happened;
};

TEST_F(Start, ShowsTheSplashThenTheMainWindowThenTheWelcome)
{
    writeSetting(settingsFile(), u"Database"_s, u"Status"_s, u"RO"_s);
    bool welcomed = false;
    recorded.dialogSteps = {waitOutSplash, [&](QDialog& dialog) {
                                welcomed = dynamic_cast<frmNewDoc*>(&dialog);
                                EXPECT_TRUE(form<Form1>().isVisible() && form<Form1>().isMaximized());
                                EXPECT_EQ(session.databaseStatus, u"RW"_s);
                            }};
    startUp();
    EXPECT_TRUE(welcomed);
    EXPECT_EQ(happened.mid(0, 3), QStringList({u"busy"_s, u"idle"_s, u"clipboard"_s}));
    EXPECT_TRUE(isLoaded<Form1>());
}

TEST_F(Start, AnErrorThatNobodyAnswersEndsTheProgramInOrder)
{
    recorded.dialogSteps = {waitOutSplash};
    desktop.screen.twipsPerPixelX = []() -> double { throw RuntimeError(deviceUnavailable); };
    EXPECT_FALSE(endingOnError(startUp));
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Device unavailable"_s));
    EXPECT_FALSE(isLoaded<Form1>());
}

TEST_F(Start, TheExitQuestionEndsEverythingOrNothing)
{
    form<Form1>();
    form<ExitForm>().show();
    form<ExitForm>().reject();
    EXPECT_FALSE(isLoaded<ExitForm>());
    EXPECT_TRUE(isLoaded<Form1>());
    form<ExitForm>().show();
    press(form<ExitForm>(), "YesBut");
    EXPECT_FALSE(isLoaded<ExitForm>() || isLoaded<Form1>());
    EXPECT_EQ(recorded.ends, 1);
}
