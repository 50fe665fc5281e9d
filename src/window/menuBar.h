// The program's own menu: large headings on the band, and a panel of lines with icons.
//
// Mouse events are handled by the whole panel, since the three controls of a line act as one and a disabled
// line needs them too. Keyboard and assistive technology use the headings and captions, which are buttons.
#pragma once

#include "core/menu.h"

#include <QFrame>
#include <QPointer>
#include <QWidget>

#include <array>

class QLabel;
class QMouseEvent;
class QPushButton;

class MenuBar : public QWidget {
    Q_OBJECT
public:
    /// Belongs at the top left of the window's client area. The panel is a child of the window too.
    explicit MenuBar(QWidget* window);

    /// Shows the headings, the open menu and its lines from the session.
    void showState();

    std::array<QPushButton*, lastHeading + 1> MenuTop;
    QFrame* ShadowLeft;
    QFrame* ShadowTop;
    QFrame* ShadowRight;
    QFrame* ShadowBot;
    QFrame* MenuHolder;
    std::array<QFrame*, lastMenuLine + 1> menuHighlight; // the whole line, parent of the other two
    std::array<QLabel*, lastMenuLine + 1> menuPic;
    std::array<QPushButton*, lastMenuLine + 1> menuCaption;

private:
    void makeHeadings();
    void makePanel(QWidget* window);
    void makeLine(int line);
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool headingEvent(int menu, QEvent* event);
    bool panelEvent(QEvent* event);
    bool keyOnHeading(int menu, int key);
    bool keyInPanel(int key);

    void frameHeading(int menu);
    void placePanel();
    void fillLine(int line);
    void takeFocus();
    void giveFocusBack();
    void highlight(int line);
    int lineAt(const QMouseEvent* event) const;
    void openByKey(int menu);
    void highlightNext(int direction);
    int nextHeading(int menu, int direction) const;

    int shownMenu = -1;
    int highlighted = -1;
    int pressed = -1;
    QPointer<QWidget> focusBefore;
};
