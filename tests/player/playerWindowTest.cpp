#include "player/playerWindow.h"
#include "player/smallLesson.h"
#include "store/options.h"
#include "support/dialogs.h"

#include <QAccessible>
#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// As started from the help window, with /shc; time passes only by advance().
struct Playing : Fresh {
    Playing()
        : window(writeLesson(), true)
        , page(*window.page)
    {
        window.resize(800, 500);
        window.show();
        QApplication::setActiveWindow(&window);
        page.frames.stop();
    }

    void type(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    double second() const { return page.playback.shown().second; }
    std::size_t scene() const { return page.playback.shown().scene; }

    PlayerWindow window;
    LessonPage& page;
};

} // namespace

TEST_F(Playing, KeysPauseStepAndStartAgain)
{
    page.advance(0.2);
    EXPECT_EQ(second(), 0.2);
    type(Qt::Key_Space);
    page.advance(0.2);
    EXPECT_EQ(second(), 0.2) << "paused";
    EXPECT_EQ(page.turn->accessibleName(), u"Play"_s);
    type(Qt::Key_Space);
    page.advance(0.2);
    EXPECT_EQ(second(), 0.4);
    type(Qt::Key_Right);
    EXPECT_EQ(scene(), 1U);
    type(Qt::Key_Left);
    EXPECT_EQ(scene(), 0U);
    EXPECT_EQ(second(), 0);
    type(Qt::Key_Right);
    type(Qt::Key_Right);
    EXPECT_TRUE(page.playback.atEnd());
    EXPECT_TRUE(page.again->isVisible());
    EXPECT_TRUE(window.isVisible()) << "it doesn't close by itself";
    type(Qt::Key_Home);
    EXPECT_EQ(scene(), 0U);
    EXPECT_FALSE(page.again->isVisible());
    type(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(window.hasFailed());
}

TEST_F(Playing, ButtonsDoTheSameAndLeaveTheKeysTheirMeaning)
{
    press(page.on);
    EXPECT_EQ(scene(), 1U);
    type(Qt::Key_Space); // not "Next" once more
    EXPECT_TRUE(page.playback.isPaused());
    EXPECT_FALSE(page.playback.atEnd());
    press(page.back);
    press(page.turn);
    EXPECT_EQ(scene(), 0U);
    EXPECT_FALSE(page.playback.isPaused());
    page.close->setFocus(Qt::TabFocusReason);
    type(Qt::Key_Left); // not to the button before
    EXPECT_TRUE(page.close->hasFocus());
    type(Qt::Key_Space);
    EXPECT_FALSE(window.isVisible());
}

/// It reads what gets the focus.
TEST_F(Playing, AScreenReaderHearsEachCaptionAndTheEnd)
{
    QList<QWidget*> heard;
    const QObject listening;
    QObject::connect(qApp, &QApplication::focusChanged, &listening,
                     [&](QWidget*, QWidget* focused) { heard.append(focused); });
    const auto saidLast = [&]() -> QString {
        auto* voice = heard.isEmpty() ? nullptr : QAccessible::queryAccessibleInterface(heard.last());
        heard.clear();
        return voice ? voice->text(QAccessible::Name) + u' ' + voice->text(QAccessible::Description)
                     : QString();
    };
    page.advance(0.1);
    EXPECT_EQ(saidLast(), QString()) << "nothing new";
    type(Qt::Key_Right);
    EXPECT_EQ(saidLast(), u"Drag the card. "_s);
    type(Qt::Key_Space);
    EXPECT_EQ(saidLast(), u"Drag the card. Paused."_s);
    type(Qt::Key_Right);
    EXPECT_EQ(saidLast(), u"Play again "_s);
    type(Qt::Key_Space);
    EXPECT_EQ(saidLast(), u"Open the menu Card. "_s);
}

TEST_F(Playing, ALongCaptionIsWholeInASmallWindow)
{
    const QString longest =
        u"Choose the field that you want, type what you look for, and then press OK to find all of them. Yes!"_s;
    page.caption->say(longest);
    window.resize(1024, 560);
    EXPECT_EQ(page.caption->textInView().remove(u'\n').remove(u' '), QString(longest).remove(u' '));
}

TEST_F(Playing, APictureThatVanishesEndsInAMessage)
{
    QFile::remove(inTestFolder(u"02.png"_s));
    type(Qt::Key_Right);
    EXPECT_TRUE(window.hasFailed());
    EXPECT_TRUE(part<QLabel>(window, "why").isVisible());
    type(Qt::Key_Return); // Close
    EXPECT_FALSE(window.isVisible());
}

using Player = Fresh;

TEST_F(Player, BeginsWithTheTitlePageOrWithStills)
{
    write(option::motion, u"0"_s);
    PlayerWindow window(writeLesson(), false);
    window.show();
    QApplication::setActiveWindow(&window);
    EXPECT_EQ(window.windowTitle(), u"Finding Cards"_s);
    EXPECT_FALSE(window.page->isVisible());
    const QSize least = window.minimumSizeHint();
    EXPECT_TRUE(least.width() <= 1024 && least.height() <= 560) << least.width() << " x " << least.height();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // Play
    EXPECT_TRUE(window.page->isVisible());
    EXPECT_EQ(window.page->playback.shown().second, 4) << "a still";
}

TEST_F(Player, SaysWhatIsWrongWithALesson)
{
    PlayerWindow window(inTestFolder(u"nowhere"_s), true);
    window.show();
    EXPECT_TRUE(window.hasFailed());
    EXPECT_EQ(window.page, nullptr);
    EXPECT_FALSE(part<QLabel>(window, "why").text().isEmpty());
}
