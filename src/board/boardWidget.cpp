#include "board/boardWidget.h"

#include "core/screen.h"
#include "platform/balloon.h"
#include "platform/picture.h"

#include <QApplication>
#include <QCursor>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>

namespace {

constexpr QSize pointerSize(32, 32);
constexpr int restOfFinger = 800; // milliseconds until a finger counts as resting

struct PointerPicture {
    const char* name;
    QPoint hotSpot;
};
constexpr PointerPicture pointerPictures[] = {
    {nullptr, {}}, // the arrow is the desktop's
    {"handOpen", {16, 14}}, {"handClosed", {16, 14}}, {"cardSound", {13, 19}}, {"binCursor", {16, 16}},
};

QRect shownRect(const CardImage& card) { return card.visible ? wholePixels(card) : QRect(); }
QRect shownRect(const BoardShape& shape) { return shape.visible ? wholePixels(shape) : QRect(); }

} // namespace

BoardWidget::BoardWidget(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(QStringLiteral("Board"));
    setAccessibleDescription(QStringLiteral("The cards of the database"));
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    fingerRests.setSingleShot(true);
    fingerRests.setInterval(restOfFinger);
    connect(&fingerRests, &QTimer::timeout, this, [this] { guarded([this] { hand.rest(); }); });
    hand.whenPointerChanges([this] { showPointer(mapFromGlobal(QCursor::pos())); });
}

void BoardWidget::connectScreen()
{
    const QPointer self(this);
    ::screen.redrawBoard = [self] {
        if (self)
            self->repaintBoard();
    };
    ::screen.redrawCard = [self](int card) {
        if (self)
            self->repaintCard(card);
    };
    ::screen.measureLabel = [self](const QString& text, double& width, double& height) {
        if (!self)
            return;
        self->ensurePolished();
        width = self->fontMetrics().horizontalAdvance(text);
        height = self->fontMetrics().height();
    };
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
        shownCard[std::size_t(i)] = shownRect(session.box[i]);
    shownFrame = shownRect(session.SelectBox);
    voice.follow();
}

void BoardWidget::repaintCard(int card)
{
    // Also when no whole pixel changed: painting is the pace of a flight.
    repaintMoved(shownCard.at(std::size_t(card)), shownRect(session.box[card]));
    if (shownFrame != shownRect(session.SelectBox))
        repaintMoved(shownFrame, shownRect(session.SelectBox));
    voice.follow(card);
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
    session.boardWidth = width();
    session.boardHeight = height();
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

// ---- the tool tip ----

bool BoardWidget::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    guarded([this, event] { showTip(*static_cast<QHelpEvent*>(event)); });
    return true;
}

void BoardWidget::showTip(const QHelpEvent& help)
{
    const int card = cardAt(help.pos());
    const QString hint = card == 0 ? QString() : plainHint(session.box[card].tooltip);
    if (hint.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help.globalPos(), hint, this, wholePixels(session.box[card]));
}
