// The window of the player: the title page, the lesson, or what is wrong with it.
#pragma once

#include "platform/errands.h"
#include "player/lessonPage.h"

#include <QStackedWidget>

class PlayerWindow : public QStackedWidget {
    Q_OBJECT
public:
    /// `atOnce`: without the title page.
    PlayerWindow(const QString& lessonFolder, bool atOnce);

    /// Whether the lesson can't be played.
    bool hasFailed() const { return broken; }

    LessonPage* page = nullptr; // null without a lesson

private:
    void addPages(bool atOnce);
    void askForStills();
    void play();
    void showFault(const QString& why);

    Lesson lesson;
    Errands errands;
    bool broken = false;
};
