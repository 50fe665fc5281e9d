// Plays a lesson: its screen above, controls, caption and progress below.
#pragma once

#include "player/captionBox.h"
#include "player/film.h"
#include "player/stage.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <functional>

class LessonPage : public QWidget {
    Q_OBJECT
public:
    /// `failed` is called when a picture turns out to be damaged, `close` by the button.
    LessonPage(const Lesson& lesson, const std::function<void()>& close,
               const std::function<void(const QString& why)>& failed);

    /// Begins to play; later calls begin again.
    void begin();
    void showStills();
    /// Some time has passed.
    void advance(double seconds);

    Stage* stage;
    CaptionBox* caption;
    QLabel* progress;
    QPushButton* back;
    QPushButton* turn;
    QPushButton* on;
    QPushButton* close;
    QPushButton* again;
    Playback playback;
    QTimer frames;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLayout* strip();
    void connectControls(const std::function<void()>& whenClosed);
    void keyDoes(int key, const std::function<void()>& act);
    void act(const std::function<void()>& change);
    bool refresh();
    void showState();

    const Lesson& lesson;
    std::function<void(const QString&)> failed;
    Film film;
    QElapsedTimer clock;
};
