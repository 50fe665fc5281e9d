// The About page of the teacher's options: the release, the maker, and a list of thanks that moves past.
#pragma once

#include "platform/errands.h"

#include <QFrame>
#include <QTimer>

class QLabel;
class QPushButton;

/// A frame in which a longer text scrolls up. It rests while the mouse or the keyboard is on it,
/// and can then be moved with the wheel and the arrow keys.
class ScrollingList : public QFrame {
    Q_OBJECT
public:
    ScrollingList();

    /// Lets the text move, unless the user wants nothing to move.
    void begin();

    QLabel* const lblTeam;
    QTimer* const Timer3; // 50 ms

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void step();
    void moveBy(int pixels);

    Errands errands; // asks the desktop whether things may move
};

class AboutPage : public QWidget {
    Q_OBJECT
public:
    AboutPage();

    ScrollingList* const Pic3;
    QLabel* const lblVer;
    QPushButton* const HP1; // the maker's page
    QPushButton* const HP2; // a mail to the maker
};
