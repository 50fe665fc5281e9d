#include "window/frmNewDoc.h"

#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "store/settings.h"
#include "support/dialogs.h"
#include "support/files.h"

#include <QLabel>
#include <QRadioButton>

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

    QStringList ran;
};

TEST_F(Welcome, OffersTheLastDatabaseOnlyWhenThereIsOne)
{
    EXPECT_FALSE(shown().Option4->isEnabled());
    EXPECT_EQ(shown().lblPath->text(), u"No last Database"_s);
    unload<frmNewDoc>();
    writeSetting(settingsFile(), u"Last DB"_s, u"Path"_s, u"/school/zoo"_s);
    EXPECT_TRUE(shown().Option4->isEnabled() && !shown().Option4->isChecked());
    EXPECT_EQ(shown().Option4->accessibleDescription(), u"/school/zoo"_s);
}

TEST_F(Welcome, OkWaitsForAChoiceAndKeysAloneMakeOne)
{
    auto& dialog = shown();
    press(dialog, "BtnOK");
    EXPECT_THAT(ran, IsEmpty());
    ASSERT_TRUE(isLoaded<frmNewDoc>());
    dialog.Option1->setFocus();
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
        const QPoint left(12, target->height() / 2);
        QTest::mouseClick(target, Qt::LeftButton, {}, left);
        QTest::mouseDClick(target, Qt::LeftButton, {}, left);
        QCoreApplication::processEvents();
        EXPECT_THAT(ran, ElementsAre(u"open"_s)) << onWords;
    }
}

TEST_F(Welcome, AVideoLeavesTheDialogOpenAndMissingOnesAreOffered)
{
    shown().Option3->click();
    press(shown(), "BtnOK");
    EXPECT_THAT(recorded.started, ElementsAre(inTestFolder(u"Videos/Oview.exe /shc"_s)));
    EXPECT_TRUE(isLoaded<frmNewDoc>());
    desktop.programs.start = [](const QString&, const QStringList&) { throw RuntimeError(fileNotFound); };
    recorded.answers = {false, true};
    press(shown(), "BtnOK");
    EXPECT_THAT(ran, IsEmpty());
    press(shown(), "BtnOK");
    EXPECT_THAT(ran, ElementsAre(u"install"_s));
    EXPECT_EQ(recorded.beeps, 2);
    press(shown(), "BtnVid"); // ignores the failure
    EXPECT_EQ(recorded.messages.size(), 2);
}

TEST_F(Welcome, AnErrorWhileOpeningEndsTheProgram)
{
    mainView.openDatabase = [] { throw RuntimeError(pathNotFound); };
    shown().Option2->click();
    press(shown(), "BtnOK");
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Path not found"_s));
    EXPECT_FALSE(isLoaded<frmNewDoc>());
}
