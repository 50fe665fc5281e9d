#include "window/frmNewDoc.h"

#include "controls/forms.h"
#include "core/mainView.h"
#include "platform/errors.h"
#include "store/settings.h"
#include "support/freshStart.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

class Welcome : public Fresh {
protected:
    Welcome()
    {
        mainView.newDatabase = [this] { ran.append(u"new"_s); };
        mainView.openDatabase = [this] { ran.append(u"open"_s); };
        mainView.installTutorials = [this] { ran.append(u"install"_s); };
    }

    static frmNewDoc& shown()
    {
        auto& dialog = form<frmNewDoc>();
        dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        return dialog;
    }

    static void click(QWidget* option)
    {
        QTest::mouseClick(option, Qt::LeftButton, {}, {12, option->height() / 2});
    }

    static void press(const char* name)
    {
        QTest::mouseClick(form<frmNewDoc>().findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    static void videosAreMissing()
    {
        desktop.programs.start = [](const QString&, const QStringList&) { throw RuntimeError(fileNotFound); };
    }

    QStringList ran;
};

TEST_F(Welcome, OffersTheLastDatabaseWithoutChoosingIt)
{
    EXPECT_FALSE(shown().Option4->isEnabled());
    EXPECT_EQ(shown().lblPath->text(), u"No last Database"_s);

    unload<frmNewDoc>();
    writeSetting(settingsFile(), u"Last DB"_s, u"Path"_s, u"/school/zoo"_s);
    EXPECT_TRUE(shown().Option4->isEnabled() && shown().lblPath->isEnabled());
    EXPECT_FALSE(shown().Option4->isChecked());
    EXPECT_EQ(shown().lblPath->text(), u"/school/zoo"_s);
    EXPECT_EQ(shown().Option4->accessibleDescription(), u"/school/zoo"_s);
}

TEST_F(Welcome, OkWaitsForAChoiceAndThenRunsIt)
{
    shown();
    press("BtnOK");
    EXPECT_TRUE(isLoaded<frmNewDoc>());
    EXPECT_THAT(ran, IsEmpty());

    click(shown().Option1);
    press("BtnOK");
    EXPECT_THAT(ran, ElementsAre(u"new"_s));
    EXPECT_FALSE(isLoaded<frmNewDoc>());
}

TEST_F(Welcome, KeysAloneChooseAndConfirm)
{
    auto& dialog = shown();
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_THAT(ran, ElementsAre(u"open"_s));
    EXPECT_FALSE(isLoaded<frmNewDoc>());
}

TEST_F(Welcome, ADoubleClickOnAnOptionOrItsWordsIsOk)
{
    for (const bool onWords : {false, true}) {
        ran.clear();
        auto& dialog = shown();
        QWidget* words = dialog.Option2->parentWidget()->childAt(dialog.Option2->geometry().bottomLeft() +
                                                                 QPoint(120, 10));
        ASSERT_TRUE(qobject_cast<QLabel*>(words));
        QWidget* target = onWords ? words : dialog.Option2;
        click(target);
        QTest::mouseDClick(target, Qt::LeftButton, {}, {12, target->height() / 2});
        QCoreApplication::processEvents();
        EXPECT_THAT(ran, ElementsAre(u"open"_s)) << onWords;
    }
}

TEST_F(Welcome, AVideoLeavesTheDialogOpen)
{
    click(shown().Option3);
    press("BtnOK");
    EXPECT_THAT(recorded.started, ElementsAre(desktop.files.programFolder() + u"/Videos/Oview.exe /shc"_s));
    EXPECT_TRUE(isLoaded<frmNewDoc>());
    EXPECT_EQ(recorded.beeps, 0);
}

TEST_F(Welcome, MissingVideosAreOfferedToBeInstalled)
{
    videosAreMissing();
    click(shown().Option3);
    recorded.answers = {false, true};
    press("BtnOK");
    EXPECT_THAT(ran, IsEmpty());
    press("BtnOK");
    EXPECT_THAT(ran, ElementsAre(u"install"_s));
    EXPECT_EQ(recorded.beeps, 2);
    EXPECT_EQ(recorded.messages.value(0), u"Confirm|It appears you have not installed the Video Tutorials.\n"
                                          "Would you like to install them now?"_s);
    press("BtnVid"); // ignores the failure
    EXPECT_EQ(recorded.messages.size(), 2);
}

TEST_F(Welcome, AnErrorWhileOpeningEndsTheProgram)
{
    mainView.openDatabase = [] { throw RuntimeError(pathNotFound); };
    shown().Option2->click();
    press("BtnOK");
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Path not found"_s));
    EXPECT_FALSE(isLoaded<frmNewDoc>());
}
