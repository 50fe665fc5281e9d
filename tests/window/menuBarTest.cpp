#include "window/menuBar.h"

#include "core/mainView.h"
#include "core/session.h"
#include "support/freshStart.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A window with the menu and another control that can have the focus.
class MenuBarOnWindow : public Fresh {
protected:
    MenuBarOnWindow()
    {
        fillMenuTables();
        mainView.showControls = [this] { bar.showState(); };
        window.resize(800, 600);
        QCursor::setPos(700, 500); // away from the menu
        window.show();
        QApplication::setActiveWindow(&window);
        other.setFocus();
        QCoreApplication::processEvents();
    }

    QPoint middleOf(const QWidget* control) const
    {
        return control->mapTo(&window, control->rect().center());
    }
    void moveTo(const QWidget* control) { QTest::mouseMove(window.windowHandle(), middleOf(control)); }
    void click(const QWidget* control)
    {
        moveTo(control);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, middleOf(control));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, key, modifiers);
        QCoreApplication::processEvents();
    }
    int lit() const
    {
        int line = -1;
        for (int i = 0; i <= lastMenuLine; ++i) {
            if (bar.menuHighlight[i]->property("lit").toBool())
                line = line < 0 ? i : 99;
        }
        return line;
    }

    QWidget window;
    QLineEdit other{&window};
    MenuBar bar{&window};
};

} // namespace

TEST_F(MenuBarOnWindow, ShowsWordsPicturesAndStatesOfTheOpenMenuOnly)
{
    session.menu.menuItemState[0][2] = u"IfSelect"_s;
    click(bar.MenuTop[1]);
    EXPECT_TRUE(bar.menuHighlight[4]->isVisible());
    moveTo(bar.MenuTop[0]);
    ASSERT_TRUE(bar.menuHighlight[3]->isVisible());
    EXPECT_EQ(bar.menuCaption[2]->text(), u"Print..."_s);
    EXPECT_FALSE(bar.menuCaption[2]->isEnabled());
    EXPECT_TRUE(bar.menuCaption[3]->isEnabled());
    EXPECT_FALSE(bar.menuPic[0]->pixmap().isNull());
    EXPECT_FALSE(bar.menuHighlight[4]->isVisible());
}

TEST_F(MenuBarOnWindow, FramesTheHeadingAndLightsTheLineUnderTheMouse)
{
    QTest::mouseMove(window.windowHandle(), QPoint(400, 400)); // it may be there from another test
    EXPECT_FALSE(bar.ShadowTop->isVisible());
    moveTo(bar.MenuTop[2]);
    const QRect around = bar.MenuTop[2]->geometry().adjusted(-1, -1, 1, 1);
    EXPECT_EQ(QRect(QPoint(bar.ShadowLeft->x(), bar.ShadowTop->y()),
                    QPoint(bar.ShadowRight->x(), bar.ShadowBot->y())),
              around);
    EXPECT_TRUE(bar.ShadowLeft->isVisible() && bar.ShadowTop->isVisible() && bar.ShadowRight->isVisible() &&
                bar.ShadowBot->isVisible());
    QTest::mouseMove(window.windowHandle(), QPoint(400, 400));
    EXPECT_FALSE(bar.ShadowTop->isVisible());

    click(bar.MenuTop[1]);
    EXPECT_TRUE(bar.MenuHolder->rect().contains(bar.menuHighlight[4]->geometry()));
    EXPECT_GT(bar.menuHighlight[4]->y(), bar.menuHighlight[3]->y());
    EXPECT_EQ(lit(), -1);
    moveTo(bar.menuCaption[3]);
    EXPECT_EQ(lit(), 3);
    moveTo(bar.menuPic[1]);
    EXPECT_EQ(lit(), 1);
    moveTo(bar.MenuTop[2]);
    EXPECT_EQ(lit(), -1);
}

TEST_F(MenuBarOnWindow, AClickAnywhereOnALineRunsItsCommandUnlessItIsGrey)
{
    for (const QWidget* place :
         std::initializer_list<QWidget*>{bar.menuPic[1], bar.menuCaption[1], bar.menuHighlight[1]}) {
        for (const bool grey : {true, false}) {
            session.menu.menuItemState[1][1] = grey ? u"Don'tShow"_s : u"Show"_s;
            session.board.BigBin.visible = false;
            closeMenu();
            click(bar.MenuTop[1]);
            click(place);
            EXPECT_EQ(session.board.BigBin.visible, !grey);
            EXPECT_EQ(bar.MenuHolder->isVisible(), grey);
        }
    }
    session.board.BigBin.visible = false;
    click(bar.MenuTop[1]);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, middleOf(bar.menuCaption[1]));
    EXPECT_FALSE(session.board.BigBin.visible);
}

TEST_F(MenuBarOnWindow, AssistiveTechnologyReachesNothingUnderADialog)
{
    QDialog dialog;
    for (const bool lineIsOpen : {false, true}) {
        if (lineIsOpen)
            bar.MenuTop[1]->click();
        dialog.open();
        (lineIsOpen ? bar.menuCaption[1] : bar.MenuTop[1])->click();
        QCoreApplication::processEvents();
        EXPECT_EQ(bar.MenuHolder->isVisible(), lineIsOpen);
        EXPECT_FALSE(session.board.BigBin.visible);
        dialog.hide();
    }
}

TEST_F(MenuBarOnWindow, SlidesAlongTheBarButNotToAGreyHeading)
{
    session.menu.MenuTop[3].enabled = false;
    bar.showState();
    moveTo(bar.MenuTop[1]);
    EXPECT_FALSE(bar.MenuHolder->isVisible());
    click(bar.MenuTop[1]);
    EXPECT_TRUE(bar.MenuHolder->isVisible());
    moveTo(bar.MenuTop[2]);
    EXPECT_EQ(session.menu.openMenuIndex, 2);
    EXPECT_EQ(bar.MenuHolder->x(), bar.MenuTop[2]->x() - 1);
    moveTo(bar.MenuTop[3]);
    EXPECT_EQ(session.menu.openMenuIndex, 2);
    click(bar.MenuTop[3]);
    EXPECT_EQ(session.menu.openMenuIndex, 2);
}

TEST_F(MenuBarOnWindow, ClosesFromOutsideAndByItsHeading)
{
    click(bar.MenuTop[0]);
    closeMenu();
    EXPECT_FALSE(bar.MenuHolder->isVisible());
    click(bar.MenuTop[0]);
    click(bar.MenuTop[0]);
    EXPECT_FALSE(bar.MenuHolder->isVisible());
    EXPECT_EQ(session.menu.openMenuIndex, -1);
    EXPECT_EQ(window.focusWidget(), &other) << "the mouse leaves the keyboard where it was";
}

TEST_F(MenuBarOnWindow, TheKeyboardOpensWalksChoosesAndGivesTheFocusBack)
{
    session.menu.MenuTop[2].enabled = false;
    session.menu.menuItemState[1][1] = u"Don'tShow"_s;
    bar.showState();

    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(session.menu.openMenuIndex, 1);
    EXPECT_EQ(lit(), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(lit(), 2) << "the grey line is passed over";
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(lit(), 4);
    press(Qt::Key_Right);
    EXPECT_EQ(session.menu.openMenuIndex, 3) << "so is a grey heading";
    press(Qt::Key_Right);
    EXPECT_EQ(session.menu.openMenuIndex, 0);
    press(Qt::Key_Left);
    EXPECT_EQ(session.menu.openMenuIndex, 3);
    press(Qt::Key_Escape);
    EXPECT_FALSE(bar.MenuHolder->isVisible());
    EXPECT_EQ(window.focusWidget(), &other);

    session.menu.menuItemState[1][1] = u"Show"_s;
    press(Qt::Key_C, Qt::AltModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(session.board.BigBin.visible);
    EXPECT_EQ(window.focusWidget(), &other);

    press(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(session.menu.openMenuIndex, -1) << "a grey heading has no key";
}

TEST_F(MenuBarOnWindow, AHeadingWithTheFocusOpensAndPassesTheFocusOn)
{
    session.menu.MenuTop[1].enabled = false;
    bar.showState();
    bar.MenuTop[0]->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_TRUE(bar.MenuTop[2]->hasFocus());
    press(Qt::Key_Down);
    EXPECT_EQ(session.menu.openMenuIndex, 2);
    EXPECT_EQ(lit(), 0);
    press(Qt::Key_Escape);
    EXPECT_TRUE(bar.MenuTop[2]->hasFocus());
}
