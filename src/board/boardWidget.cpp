#include "board/boardWidget.h"

#include "board/boardKeys.h"
#include "board/mode.h"
#include "controls/balloon.h"
#include "core/mainView.h"
#include "platform/picture.h"

#include <QApplication>
#include <QCursor>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pointerSize(32, 32);
constexpr double slowestScreen = 30; // frames a second, where the screen reports an impossible rate
constexpr double fastestScreen = 240;
constexpr int restOfFinger = 800; // milliseconds until a touch counts as a long press

struct PointerPicture {
    const char* name;
    QPoint hotSpot;
};
constexpr PointerPicture pointerPictures[] = {
    {nullptr, {}}, // the desktop's own arrow
    {"handOpen", {16, 14}}, {"handClosed", {16, 14}}, {"cardSound", {13, 19}}, {"binCursor", {16, 16}},
};

template <class Thing>
QRect shownRect(const Thing& thing, double ratio)
{
    return thing.visible ? paintedRect(thing, ratio) : QRect();
}

} // namespace

BoardWidget::BoardWidget(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(u"Board"_s);
    setAccessibleDescription(u"The cards of the database"_s);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    fingerRests.setSingleShot(true);
    fingerRests.setInterval(restOfFinger);
    pictureDue.setSingleShot(true);
    pictureDue.setTimerType(Qt::PreciseTimer);
    connect(&pictureDue, &QTimer::timeout, this, &BoardWidget::paintWhatMoved);
    sinceStart.start();
    connect(&fingerRests, &QTimer::timeout, this, [this] { guarded([this] { hand.rest(); }); });
    QAccessible::installActivationObserver(this);
    hand.whenPointerChanges([this] { showPointer(mapFromGlobal(QCursor::pos())); });
}

BoardWidget::~BoardWidget() { QAccessible::removeActivationObserver(this); }

void BoardWidget::measureLabel(const QString& text, double& width, double& height) const
{
    ensurePolished();
    width = fontMetrics().horizontalAdvance(text);
    height = fontMetrics().height();
}

// ---- painting ----

void BoardWidget::paintEvent(QPaintEvent* event)
{
    guarded([this, event] {
        QPainter painter(this);
        for (const QRect& damage : event->region()) {
            painter.setClipRect(damage);
            paintBoard(painter, damage, look());
        }
    });
}

BoardLook BoardWidget::look() const
{
    return {font(), palette().color(QPalette::WindowText), paper, leftTint, rightTint, binUp, binDown};
}

void BoardWidget::repaintBoard()
{
    update();
    for (int i = 1; i <= lastCard; ++i)
        shownCard[std::size_t(i)] = shownRect(session.box[i], devicePixelRatioF());
    shownFrame = shownRect(session.board.SelectBox, devicePixelRatioF());
    moved.reset();
    voice.follow();
}

void BoardWidget::repaintCard(int card)
{
    moved.set(card);
    voice.follow(card);
    const qint64 wait = nextPicture - sinceStart.nsecsElapsed();
    if (wait <= 0)
        paintWhatMoved();
    else if (!pictureDue.isActive())
        pictureDue.start(int(wait / 1'000'000) + 1);
}

void BoardWidget::paintWhatMoved()
{
    const qint64 now = sinceStart.nsecsElapsed();
    const auto pictureTime = qint64(1e9 / std::clamp(screen()->refreshRate(), slowestScreen, fastestScreen));
    nextPicture = (now - nextPicture < pictureTime / 2 ? nextPicture : now) + pictureTime;
    pictureDue.stop();
    const double ratio = devicePixelRatioF();
    for (std::size_t card = 1; card < moved.size(); ++card) {
        if (moved[card])
            repaintMoved(shownCard.at(card), shownRect(session.box[int(card)], ratio));
    }
    moved.reset();
    if (shownFrame != shownRect(session.board.SelectBox, ratio))
        repaintMoved(shownFrame, shownRect(session.board.SelectBox, ratio));
}

void BoardWidget::repaintMoved(QRect& before, const QRect& now)
{
    if (before.intersects(now)) {
        update(before | now);
    } else {
        update(before);
        update(now);
    }
    before = now;
}

void BoardWidget::resizeEvent(QResizeEvent*)
{
    session.board.width = width();
    session.board.height = height();
}

// ---- the mouse ----

void BoardWidget::mousePressEvent(QMouseEvent* event)
{
    guarded([this, event] { hand.press(event->position()); });
    showPointer(event->position());
    fingerPressed = event->position();
    if (event->device()->type() == QInputDevice::DeviceType::TouchScreen)
        fingerRests.start();
}

void BoardWidget::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->position() - fingerPressed).manhattanLength() >= QApplication::startDragDistance())
        fingerRests.stop();
    guarded([this, event] { hand.moveTo(event->position(), event->buttons() != Qt::NoButton); });
    showPointer(event->position());
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event)
{
    fingerRests.stop();
    guarded(
        [this, event] { hand.letGo(event->button() == Qt::RightButton, event->buttons() != Qt::NoButton); });
    showPointer(event->position());
}

void BoardWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    guarded([this, event] {
        if (event->button() != Qt::LeftButton || !hand.openCardAt(event->position()))
            hand.press(event->position());
    });
    showPointer(event->position());
}

void BoardWidget::leaveEvent(QEvent*)
{
    guarded([this] { hand.leave(); });
}

void BoardWidget::showPointer(QPointF point)
{
    const Hand::Pointer wanted = hand.pointerAt(point);
    if (wanted == pointer)
        return;
    pointer = wanted;
    const auto& [name, hotSpot] = pointerPictures[int(wanted)];
    if (name == nullptr) {
        unsetCursor();
        return;
    }
    setCursor(QCursor(picture(QLatin1String(name), pointerSize), hotSpot.x(), hotSpot.y()));
}

// ---- the keys ----

void BoardWidget::showEvent(QShowEvent*)
{
    setFocusPolicy(boardHasKeys() ? Qt::StrongFocus : Qt::ClickFocus);
}

void BoardWidget::accessibilityActiveChanged(bool)
{
    setFocusPolicy(boardHasKeys() ? Qt::StrongFocus : Qt::ClickFocus);
}

void BoardWidget::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    const bool shift = held == Qt::ShiftModifier;
    const bool arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
    event->setAccepted(boardHasKeys() && !boardIsCovered() && (shift || held == Qt::NoModifier) &&
                       (arrow || !event->isAutoRepeat()));
    if (!event->isAccepted())
        return;
    guarded([&] { event->setAccepted(pressBoardKey(event->key(), shift)); });
    const int card = session.selectedCard;
    if (arrow && session.board.SelectBox.visible)
        showTip(card, mapToGlobal(wholePixels(session.box[card]).bottomLeft()));
}

void BoardWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKey && !boardIsCovered())
        guarded(selectPresentCard);
}

// ---- the tool tip ----

bool BoardWidget::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    guarded([this, event] { showTip(*static_cast<QHelpEvent*>(event)); });
    return true;
}

void BoardWidget::showTip(const QHelpEvent& help) { showTip(cardAt(help.pos()), help.globalPos()); }

/// The whole label of the card at that point of the screen.
void BoardWidget::showTip(int card, QPoint point)
{
    if (card == 0)
        return; // the bin's hint stays
    const QString hint = plainHint(session.box[card].tooltip);
    if (hint.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(point, hint, this, wholePixels(session.box[card]));
}
