#include "player/lessonPage.h"

#include "controls/balloon.h"
#include "controls/dialogParts.h"
#include "platform/errors.h"
#include "platform/picture.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QShortcut>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int frameTime = 16;       // ms
constexpr double mostAtOnce = 0.25; // seconds: a machine that was busy doesn't jump over what is shown

/// A button for mouse and Tab. A click leaves the focus with the caption, so that the keys keep their
/// meaning.
QPushButton* control(const char* name, const char* picture, const QString& meaning, const QString& key)
{
    auto* button = named(iconButton(QLatin1String(picture), meaning, meaning + u" ("_s + key + u')'), name);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

LessonPage::LessonPage(const Lesson& played, const std::function<void()>& whenClosed,
                       const std::function<void(const QString&)>& whenFailed)
    : stage(named(new Stage, "stage"))
    , caption(new CaptionBox)
    , progress(named(words({}), "progress"))
    , back(control("back", "sceneBack", u"Back"_s, u"Left arrow"_s))
    , turn(control("turn", "pause", u"Pause"_s, u"Space"_s))
    , on(control("on", "sceneOn", u"Next"_s, u"Right arrow"_s))
    , close(control("close", "no0", u"Close"_s, u"Esc"_s))
    , again(named(new QPushButton(QIcon(picturePath(u"playAgain"_s)), u"Play again"_s), "again"))
    , playback(played)
    , lesson(played)
    , failed(whenFailed)
    , film(played)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(10, 10, 10, 8);
    column->setSpacing(10);
    column->addWidget(stage, 1);
    column->addLayout(strip());
    chainTabs({caption->widget(0), caption->widget(1), back, again, turn, on, close});
    connectControls(whenClosed);
    frames.setInterval(frameTime);
    frames.setTimerType(Qt::PreciseTimer);
}

QLayout* LessonPage::strip()
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    for (QPushButton* button : {back, turn, on, again})
        buttons->addWidget(button);
    again->setFocusPolicy(Qt::TabFocus);
    again->hide();
    auto* left = new QVBoxLayout;
    left->setSpacing(2);
    left->addLayout(buttons);
    left->addWidget(progress, 0, Qt::AlignHCenter);
    auto* row = new QHBoxLayout;
    row->setSpacing(14);
    row->addLayout(left);
    row->addWidget(caption, 1);
    row->addWidget(close, 0, Qt::AlignVCenter);
    return row;
}

void LessonPage::connectControls(const std::function<void()>& whenClosed)
{
    const auto turnIt = [this] { act([this] { playback.turn(); }); };
    const auto stepBack = [this] { act([this] { playback.stepBack(); }); };
    const auto stepOn = [this] { act([this] { playback.stepOn(); }); };
    const auto playAgain = [this] { act([this] { playback.playAgain(); }); };
    onClick(back, stepBack);
    onClick(turn, turnIt);
    onClick(on, stepOn);
    onClick(again, playAgain);
    onClick(close, whenClosed);
    keyDoes(Qt::Key_Left, stepBack);
    keyDoes(Qt::Key_Right, stepOn);
    keyDoes(Qt::Key_Home, playAgain);
    connect(&frames, &QTimer::timeout, this,
            [this] { guarded([this] { advance(double(clock.restart()) / 1000); }); });
}

/// Before a focused button sees the key, which would move the focus.
void LessonPage::keyDoes(int key, const std::function<void()>& handler)
{
    connect(new QShortcut(key, this), &QShortcut::activated, this, [handler] { guarded(handler); });
}

/// Space on a focused button has pressed that already.
void LessonPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space)
        QWidget::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        guarded([this] { act([this] { playback.turn(); }); });
}

void LessonPage::begin()
{
    caption->takeFocus();
    clock.start();
    frames.start();
    act([this] { playback.playAgain(); });
}

void LessonPage::showStills()
{
    act([this] { playback.showStills(); });
}

void LessonPage::advance(double seconds)
{
    playback.advance(std::min(seconds, mostAtOnce));
    refresh();
}

void LessonPage::act(const std::function<void()>& change)
{
    change();
    if (refresh())
        showState();
}

/// Shows the present moment. False when that failed.
bool LessonPage::refresh()
{
    const Moment moment = playback.shown();
    try {
        if (film.show(moment))
            stage->showScreen(film.screen());
    } catch (...) {
        frames.stop();
        failed(currentErrorDescription());
        return false;
    }
    stage->showPointer(playback.pointer());
    caption->say(lesson.scenes[moment.scene].caption, playback.isPaused() ? u"Paused."_s : QString());
    progress->setText(u"Scene %1 of %2"_s.arg(moment.scene + 1).arg(lesson.scenes.size()));
    if (playback.atEnd() == again->isHidden())
        showState();
    return true;
}

/// Whether it plays, is paused or has ended.
void LessonPage::showState()
{
    const QString meaning = playback.isPaused() ? u"Play"_s : u"Pause"_s;
    if (turn->accessibleName() != meaning) {
        turn->setIcon(QIcon(picturePath(playback.isPaused() ? u"resume"_s : u"pause"_s)));
        turn->setAccessibleName(meaning);
        giveHint(*turn, meaning + u" (Space)"_s);
    }
    const bool ended = playback.atEnd();
    if (ended == !again->isHidden())
        return;
    const QWidget* focused = QApplication::focusWidget();
    const bool focusMoves =
        caption->isAncestorOf(focused) || focused == turn || focused == on || focused == again;
    again->setVisible(ended); // in place of two other buttons
    turn->setHidden(ended);
    on->setHidden(ended);
    if (ended && focusMoves)
        again->setFocus(); // which a screen reader says
    else if (focusMoves)
        caption->takeFocus();
}
