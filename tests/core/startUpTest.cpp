#include "core/startUp.h"

#include "core/ExitForm.h"
#include "core/Form1.h"
#include "core/FrmStlogo.h"
#include "core/frmNewDoc.h"
#include "core/session.h"
#include "core/shutDown.h"
#include "core/title.h"
#include "platform/forms.h"
#include "store/settings.h"
#include "support/freshStart.h"

#include <QCoreApplication>

using testing::ElementsAre;

class Start : public Fresh {
protected:
    Start()
    {
        desktop.setBusyPointer = [this](bool busy) {
            happened.append(busy ? QStringLiteral("busy") : QStringLiteral("idle"));
        };
        desktop.clearClipboard = [this] { happened.append(QStringLiteral("clipboard")); };
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
    writeSetting(settingsFile(), QStringLiteral("Database"), QStringLiteral("Status"), QStringLiteral("RO"));
    bool welcomed = false;
    recorded.dialogSteps = {waitOutSplash, [&](QDialog& dialog) {
                                welcomed = dynamic_cast<frmNewDoc*>(&dialog);
                                EXPECT_TRUE(form<Form1>().isVisible() && form<Form1>().isMaximized());
                                EXPECT_EQ(session.databaseStatus, QStringLiteral("RW"));
                            }};
    startUp();
    EXPECT_TRUE(welcomed);
    EXPECT_EQ(happened.mid(0, 3),
              QStringList({QStringLiteral("busy"), QStringLiteral("idle"), QStringLiteral("clipboard")}));
    EXPECT_TRUE(isLoaded<Form1>());
}

TEST_F(Start, AnErrorThatNobodyAnswersEndsTheProgramInOrder)
{
    recorded.dialogSteps = {waitOutSplash};
    desktop.twipsPerPixelX = []() -> double { throw RuntimeError(deviceUnavailable); };
    EXPECT_FALSE(endingOnError(startUp));
    EXPECT_THAT(recorded.messages, ElementsAre(QStringLiteral("Error|Device unavailable")));
    EXPECT_FALSE(isLoaded<Form1>());
}

TEST_F(Start, TheExitQuestionEndsEverythingOrNothing)
{
    form<Form1>();
    form<ExitForm>().show();
    form<ExitForm>().reject();
    EXPECT_EQ(session.dialogResult, QStringLiteral("Cancel"));
    EXPECT_FALSE(isLoaded<ExitForm>());
    EXPECT_TRUE(isLoaded<Form1>());

    form<ExitForm>().show();
    form<ExitForm>().findChild<QPushButton*>(QStringLiteral("YesBut"))->click();
    EXPECT_EQ(session.dialogResult, QStringLiteral("OK"));
    EXPECT_FALSE(isLoaded<ExitForm>() || isLoaded<Form1>());
}
