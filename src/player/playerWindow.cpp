#include "player/playerWindow.h"

#include "platform/desktop.h"
#include "player/playerPages.h"
#include "store/options.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

PlayerWindow::PlayerWindow(const QString& lessonFolder, bool atOnce)
{
    setObjectName(u"PlayerWindow"_s);
    setWindowTitle(u"Tallymoor"_s);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    try {
        lesson = readLesson(lessonFolder);
        setWindowTitle(lesson.title);
        addPages(atOnce);
    } catch (...) {
        showFault(currentErrorDescription());
    }
}

void PlayerWindow::addPages(bool atOnce)
{
    const auto leave = [this] { close(); };
    if (!atOnce)
        addWidget(titlePage(
            lesson, [this] { play(); }, leave));
    page = new LessonPage(lesson, leave, [this](const QString& why) { showFault(why); });
    addWidget(page);
    askForStills();
    if (atOnce)
        play();
    else
        widget(0)->setFocus();
}

void PlayerWindow::askForStills()
{
    if (read(option::motion) == "0"_L1) {
        page->showStills();
        return;
    }
    errands.send([asked = desktop.screen.reducedMotion](const Errands::Forgotten&) { return asked(); },
                 [this](bool still) {
                     if (still)
                         page->showStills();
                 });
}

void PlayerWindow::play()
{
    setCurrentWidget(page);
    page->begin();
}

void PlayerWindow::showFault(const QString& why)
{
    broken = true;
    QWidget* fault = faultPage(why, [this] { close(); });
    addWidget(fault);
    setCurrentWidget(fault);
    fault->setFocus();
}
