#include "window/menuBar.h"

#include "controls/dialogParts.h"
#include "core/session.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "window/dispatch.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Positions and sizes in pixels.
constexpr QRect headingPlaces[] = {{4, 4, 60, 32}, {68, 4, 68, 32}, {140, 4, 64, 32}, {208, 4, 64, 32}};
constexpr QSize barSize(288, menuGreyLine);
constexpr int panelMargin = 3;
constexpr int lineHeight = 44; // large enough for a finger
constexpr QMargins aroundLine(8, 6, 24, 6);
constexpr int belowLastCaption = 41; // from the last caption's top to the panel's lower edge
constexpr QSize pictureSize(32, 32);

QString numbered(const char* name, int number) { return QLatin1String(name) + QString::number(number); }

template <class Control>
Control* inRole(Control* control, const char* role)
{
    control->setProperty("role", QLatin1String(role));
    return control;
}

/// Sets the style sheet's property for the line under the mouse, on the line and its children.
void setLit(QWidget* line, bool lit)
{
    if (line->property("lit").toBool() == lit)
        return;
    line->setProperty("lit", lit);
    line->style()->polish(line);
    for (QWidget* part : line->findChildren<QWidget*>())
        part->style()->polish(part);
}

} // namespace

MenuBar::MenuBar(QWidget* window)
    : QWidget(window)
{
    setObjectName(u"menuBar"_s);
    setFixedSize(barSize);
    makeHeadings();
    makePanel(window);
    showState();
}

void MenuBar::makeHeadings()
{
    for (int menu = 0; menu <= lastHeading; ++menu) {
        const QString text = headingText(menu);
        auto* heading = inRole(new QPushButton(text, this), "menuHeading");
        heading->setObjectName(numbered("MenuTop", menu));
        heading->setGeometry(headingPlaces[menu]);
        heading->setShortcut(QKeySequence(int(Qt::ALT) | text.front().unicode()));
        heading->setFocusPolicy(Qt::TabFocus);
        heading->installEventFilter(this);
        onClick(heading, [menu] {
            if (!QGuiApplication::modalWindow()) // assistive technology reaches it, a mouse wouldn't
                clickHeading(menu);
        });
        MenuTop[menu] = heading;
    }
    ShadowLeft = named(new QFrame(this), "ShadowLeft");
    ShadowTop = named(new QFrame(this), "ShadowTop");
    ShadowRight = named(new QFrame(this), "ShadowRight");
    ShadowBot = named(new QFrame(this), "ShadowBot");
    for (QFrame* line : {ShadowLeft, ShadowTop, ShadowRight, ShadowBot})
        inRole(line, "menuShadow");
    frameHeading(-1);
}

void MenuBar::makePanel(QWidget* window)
{
    MenuHolder = named(new QFrame(window), "MenuHolder");
    MenuHolder->setMouseTracking(true);
    MenuHolder->installEventFilter(this);
    MenuHolder->hide();
    for (int line = 0; line <= lastMenuLine; ++line)
        makeLine(line);
}

void MenuBar::makeLine(int line)
{
    auto* whole = inRole(new QFrame(MenuHolder), "menuHighlight");
    auto* icon = new QLabel;
    auto* caption = inRole(new QPushButton, "menuCaption");
    whole->setObjectName(numbered("menuHighlight", line));
    icon->setObjectName(numbered("menuPic", line));
    caption->setObjectName(numbered("menuCaption", line));
    whole->setAttribute(Qt::WA_TransparentForMouseEvents);
    caption->setFocusPolicy(Qt::NoFocus);
    caption->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    caption->installEventFilter(this);

    auto* row = new QHBoxLayout(whole);
    row->setContentsMargins(aroundLine);
    row->setSpacing(10);
    row->addWidget(icon);
    row->addWidget(caption, 1);

    // Queued, so that a screen reader doesn't have to wait until a dialog opened by the command is closed.
    connect(
        caption, &QPushButton::clicked, this, [line] { guarded([line] { dispatchLine(line); }); },
        Qt::QueuedConnection);
    menuHighlight[line] = whole;
    menuPic[line] = icon;
    menuCaption[line] = caption;
}

void MenuBar::showState()
{
    for (int menu = 0; menu <= lastHeading; ++menu)
        MenuTop[menu]->setEnabled(session.menu.MenuTop[menu].enabled);

    const int before = shownMenu;
    shownMenu = session.menu.MenuHolder.visible ? session.menu.openMenuIndex : -1;
    for (int menu = 0; menu <= lastHeading; ++menu)
        setLit(MenuTop[menu], menu == shownMenu);
    if (shownMenu < 0) {
        giveFocusBack();
        MenuHolder->hide();
        return;
    }
    for (int line = 0; line <= lastMenuLine; ++line)
        fillLine(line);
    if (shownMenu == before)
        return;
    placePanel();
    MenuHolder->setAccessibleName(headingText(shownMenu));
    MenuHolder->show();
    MenuHolder->raise();
    if (before < 0)
        takeFocus();
    highlight(-1);
}

void MenuBar::fillLine(int line)
{
    const bool used = line <= session.menu.menuLastItem[shownMenu];
    menuHighlight[line]->setVisible(used);
    if (!used)
        return;
    const QString word = session.menu.menuItemCaption[shownMenu][line];
    const bool enabled = lineIsEnabled(line);
    menuCaption[line]->setText(word);
    menuCaption[line]->setEnabled(enabled);
    menuPic[line]->setEnabled(enabled);
    menuPic[line]->setPixmap(picture(pictureOf(word), pictureSize));
}

/// Places the panel below its heading, as wide as its widest line.
void MenuBar::placePanel()
{
    int width = 0;
    const int last = session.menu.menuLastItem[shownMenu];
    for (int line = 0; line <= last; ++line)
        width = std::max(width, menuHighlight[line]->sizeHint().width());
    for (int line = 0; line <= last; ++line)
        menuHighlight[line]->setGeometry(panelMargin, panelMargin + line * lineHeight, width, lineHeight);

    const QRect& heading = headingPlaces[shownMenu];
    const int lastCaptionTop = panelMargin + last * lineHeight + aroundLine.top();
    MenuHolder->setGeometry(heading.left() - 1, heading.top() + heading.height() + 1, width + 2 * panelMargin,
                            lastCaptionTop + belowLastCaption);
}

/// Shows the four lines one pixel outside the heading; hides them for -1.
void MenuBar::frameHeading(int menu)
{
    for (QFrame* line : {ShadowLeft, ShadowTop, ShadowRight, ShadowBot})
        line->setVisible(menu >= 0);
    if (menu < 0)
        return;
    const QRect frame = headingPlaces[menu].adjusted(-1, -1, 1, 1);
    ShadowLeft->setGeometry(frame.left(), frame.top(), 1, frame.height());
    ShadowTop->setGeometry(frame.left(), frame.top(), frame.width(), 1);
    ShadowRight->setGeometry(frame.right(), frame.top(), 1, frame.height());
    ShadowBot->setGeometry(frame.left(), frame.bottom(), frame.width(), 1);
}

void MenuBar::takeFocus()
{
    focusBefore = window()->focusWidget();
    MenuHolder->setFocus(Qt::PopupFocusReason);
}

void MenuBar::giveFocusBack()
{
    const QWidget* focus = window()->focusWidget();
    if (!focus || (focus != MenuHolder && !MenuHolder->isAncestorOf(focus)))
        return;
    QWidget* heir = focusBefore ? focusBefore.data() : window();
    heir->setFocus(Qt::PopupFocusReason);
}

/// Highlights the line, -1 for none, and focuses it, so that a screen reader reads it.
void MenuBar::highlight(int line)
{
    highlighted = line;
    for (int i = 0; i <= lastMenuLine; ++i)
        setLit(menuHighlight[i], i == line);
    QWidget* focus =
        line >= 0 && menuCaption[line]->isEnabled() ? static_cast<QWidget*>(menuCaption[line]) : MenuHolder;
    focus->setFocus(Qt::PopupFocusReason);
}

bool MenuBar::eventFilter(QObject* watched, QEvent* event)
{
    bool handled = false;
    guarded([&] {
        const auto heading = std::find(MenuTop.begin(), MenuTop.end(), watched);
        handled = heading != MenuTop.end() ? headingEvent(int(heading - MenuTop.begin()), event)
                                           : panelEvent(event);
    });
    return handled;
}

bool MenuBar::headingEvent(int menu, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
        if (!MenuTop[menu]->isEnabled())
            return false;
        frameHeading(menu);
        hoverHeading(menu);
        if (shownMenu >= 0) // otherwise a hidden panel would take the focus when shown
            highlight(-1);
        return false;
    case QEvent::Leave:
        frameHeading(-1);
        return false;
    case QEvent::Shortcut:
        openByKey(menu);
        return true;
    case QEvent::KeyPress:
        return keyOnHeading(menu, static_cast<QKeyEvent*>(event)->key());
    default:
        return false;
    }
}

bool MenuBar::keyOnHeading(int menu, int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Down:
        openByKey(menu);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        MenuTop[nextHeading(menu, key == Qt::Key_Left ? -1 : 1)]->setFocus(Qt::TabFocusReason);
        return true;
    default:
        return false;
    }
}

bool MenuBar::panelEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        if (const int line = lineAt(static_cast<QMouseEvent*>(event)); line >= 0)
            highlight(line);
        return true;
    case QEvent::MouseButtonPress:
        pressed = lineAt(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        if (const int line = lineAt(static_cast<QMouseEvent*>(event)); line >= 0 && line == pressed)
            dispatchLine(line);
        return true;
    case QEvent::KeyPress:
        return keyInPanel(static_cast<QKeyEvent*>(event)->key());
    default:
        return false;
    }
}

bool MenuBar::keyInPanel(int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        highlightNext(key == Qt::Key_Up ? -1 : 1);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        openByKey(nextHeading(shownMenu, key == Qt::Key_Left ? -1 : 1));
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (highlighted >= 0)
            dispatchLine(highlighted);
        return true;
    case Qt::Key_Escape:
        clickHeading(shownMenu);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

/// The line under the mouse; -1 for none, and for any button but the left one.
int MenuBar::lineAt(const QMouseEvent* event) const
{
    if (event->button() != Qt::LeftButton && event->button() != Qt::NoButton)
        return -1;
    for (int line = 0; line <= session.menu.menuLastItem[shownMenu]; ++line) {
        if (menuHighlight[line]->geometry().contains(event->position().toPoint()))
            return line;
    }
    return -1;
}

/// Opens the heading's menu and highlights its first line, or closes the menu if it is open.
void MenuBar::openByKey(int menu)
{
    clickHeading(menu);
    if (shownMenu == menu)
        highlightNext(1);
}

/// Highlights the next enabled line below (1) or above (-1), wrapping around.
void MenuBar::highlightNext(int direction)
{
    const int count = session.menu.menuLastItem[shownMenu] + 1;
    int line = highlighted < 0 && direction < 0 ? 0 : highlighted;
    for (int tried = 0; tried < count; ++tried) {
        line = (line + direction + count) % count;
        if (menuCaption[line]->isEnabled())
            return highlight(line);
    }
}

int MenuBar::nextHeading(int menu, int direction) const
{
    constexpr int count = lastHeading + 1;
    do
        menu = (menu + direction + count) % count;
    while (!MenuTop[menu]->isEnabled());
    return menu;
}
