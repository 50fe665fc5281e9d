#include "core/menuBar.h"

#include "core/dispatch.h"
#include "core/session.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/picture.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace {

// Places and measures in pixels.
constexpr QRect headingPlaces[] = {{4, 4, 60, 32}, {68, 4, 68, 32}, {140, 4, 64, 32}, {208, 4, 64, 32}};
constexpr QSize barSize(288, menuGreyLine);
constexpr int panelMargin = 3;
constexpr int lineHeight = 44; // a finger's target
constexpr QMargins aroundLine(8, 6, 24, 6);
constexpr int belowLastCaption = 41; // from its top to the panel's lower edge
constexpr QSize pictureSize(32, 32);

QString numbered(const char* name, int number) { return QLatin1String(name) + QString::number(number); }

template <class Control>
Control* inRole(Control* control, const char* role)
{
    control->setProperty("role", QLatin1String(role));
    return control;
}

/// Sets the property by which the style sheet tells the line under the mouse, for the line and what lies on
/// it.
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
    setObjectName(QStringLiteral("menuBar"));
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
        onClick(heading, [menu] { clickHeading(menu); });
        MenuTop[size_t(menu)] = heading;
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

    // Queued: a dialog that opens must not keep an assistive program waiting for its answer.
    connect(
        caption, &QPushButton::clicked, this, [line] { guarded([line] { dispatchLine(line); }); },
        Qt::QueuedConnection);
    menuHighlight[size_t(line)] = whole;
    menuPic[size_t(line)] = icon;
    menuCaption[size_t(line)] = caption;
}

void MenuBar::showState()
{
    for (int menu = 0; menu <= lastHeading; ++menu)
        MenuTop[size_t(menu)]->setEnabled(session.MenuTop[menu].enabled);

    const int before = shownMenu;
    shownMenu = session.MenuHolder.visible ? session.openMenuIndex : -1;
    for (int menu = 0; menu <= lastHeading; ++menu)
        setLit(MenuTop[size_t(menu)], menu == shownMenu);
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
    const auto at = size_t(line);
    const bool used = line <= session.menuLastItem[shownMenu];
    menuHighlight[at]->setVisible(used);
    if (!used)
        return;
    const QString word = session.menuItemCaption[shownMenu][line];
    const bool enabled = session.menuCaption[line].enabled;
    menuCaption[at]->setText(word);
    menuCaption[at]->setEnabled(enabled);
    menuPic[at]->setEnabled(enabled);
    menuPic[at]->setPixmap(picture(pictureOf(word), pictureSize));
}

/// Below its heading, as wide as the widest line needs.
void MenuBar::placePanel()
{
    int width = 0;
    const int last = session.menuLastItem[shownMenu];
    for (int line = 0; line <= last; ++line)
        width = std::max(width, menuHighlight[size_t(line)]->sizeHint().width());
    for (int line = 0; line <= last; ++line)
        menuHighlight[size_t(line)]->setGeometry(panelMargin, panelMargin + line * lineHeight, width,
                                                 lineHeight);

    const QRect& heading = headingPlaces[shownMenu];
    const int lastCaptionTop = panelMargin + last * lineHeight + aroundLine.top();
    MenuHolder->setGeometry(heading.left() - 1, heading.top() + heading.height() + 1, width + 2 * panelMargin,
                            lastCaptionTop + belowLastCaption);
}

/// The four lines one pixel outside the heading; none for -1.
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

/// Lights the line, -1 for none, and gives it the keyboard, so that assistive technology reads it out.
void MenuBar::highlight(int line)
{
    highlighted = line;
    for (int i = 0; i <= lastMenuLine; ++i)
        setLit(menuHighlight[size_t(i)], i == line);
    QWidget* focus = line >= 0 && menuCaption[size_t(line)]->isEnabled()
                         ? static_cast<QWidget*>(menuCaption[size_t(line)])
                         : MenuHolder;
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
        if (!MenuTop[size_t(menu)]->isEnabled())
            return false;
        frameHeading(menu);
        hoverHeading(menu);
        if (shownMenu >= 0) // a hidden panel would take the keyboard as soon as it is shown
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
        MenuTop[size_t(nextHeading(menu, key == Qt::Key_Left ? -1 : 1))]->setFocus(Qt::TabFocusReason);
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

/// The line at the mouse; -1 beside the lines and for any button but the left one.
int MenuBar::lineAt(const QMouseEvent* event) const
{
    if (event->button() != Qt::LeftButton && event->button() != Qt::NoButton)
        return -1;
    for (int line = 0; line <= session.menuLastItem[shownMenu]; ++line) {
        if (menuHighlight[size_t(line)]->geometry().contains(event->position().toPoint()))
            return line;
    }
    return -1;
}

/// Opens the heading's menu and lights its first line; a menu that is open already closes.
void MenuBar::openByKey(int menu)
{
    clickHeading(menu);
    if (shownMenu == menu)
        highlightNext(1);
}

/// Lights the nearest enabled line above (-1) or below (1), around the ends.
void MenuBar::highlightNext(int direction)
{
    const int count = session.menuLastItem[shownMenu] + 1;
    int line = highlighted < 0 && direction < 0 ? 0 : highlighted;
    for (int tried = 0; tried < count; ++tried) {
        line = (line + direction + count) % count;
        if (menuCaption[size_t(line)]->isEnabled())
            return highlight(line);
    }
}

int MenuBar::nextHeading(int menu, int direction) const
{
    constexpr int count = lastHeading + 1;
    do
        menu = (menu + direction + count) % count;
    while (!MenuTop[size_t(menu)]->isEnabled());
    return menu;
}
