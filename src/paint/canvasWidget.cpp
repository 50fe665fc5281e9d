#include "paint/canvasWidget.h"

#include "controls/droppedFile.h"
#include "paint/painter.h"
#include "paint/tools.h"
#include "platform/errors.h"
#include "platform/picture.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint inside(1, 1); // of the frame
constexpr int keyStep = 4;     // pixels; one with Ctrl, the grid's pitch for tools that snap
constexpr int handleSize = 16;
constexpr int crossArm = 7;

/// White and ink dots, to be seen on any colour.
void drawDotted(QPainter& painter, const QColor& dark, const auto& draw)
{
    QPen pen(Qt::white, 1);
    painter.setPen(pen);
    draw();
    pen.setColor(dark);
    pen.setDashPattern({2, 2});
    painter.setPen(pen);
    draw();
}

void drawGuides(QPainter& painter, const Guides& guides)
{
    drawDotted(painter, Qt::darkBlue, [&] {
        painter.drawLine(QPointF(0, guides.HorzRuler), QPointF(canvasSize.width(), guides.HorzRuler));
        painter.drawLine(QPointF(guides.vertRuler, 0), QPointF(guides.vertRuler, canvasSize.height()));
    });
}

void drawBand(QPainter& painter, const Band& box)
{
    drawDotted(painter, Qt::black,
               [&] { box.oval ? painter.drawEllipse(box.place) : painter.drawRect(box.place); });
}

void drawSelection(QPainter& painter, const Selection& selection)
{
    painter.drawImage(selection.place.topLeft(), selection.selectedBitMap);
    if (!selection.handlesVisible)
        return;
    painter.setPen(Qt::black);
    for (const QPointF& corner : selection.PicHandle)
        painter.drawRect(QRectF(corner, QSizeF(handleSize - 1, handleSize - 1)));
}

void drawKeys(QPainter& painter, QPoint at, bool down)
{
    painter.setBrush(Qt::NoBrush);
    for (const QPen& pen : {QPen(Qt::white, 3), QPen(Qt::black, 1)}) {
        painter.setPen(pen);
        painter.drawLine(at - QPoint(crossArm, 0), at + QPoint(crossArm, 0));
        painter.drawLine(at - QPoint(0, crossArm), at + QPoint(0, crossArm));
        if (down)
            painter.drawEllipse(at, crossArm - 2, crossArm - 2);
    }
}

/// The way that an arrow key goes, none for other keys.
QPoint wayOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

/// Qt knows no role for a widget that it doesn't know.
QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* canvas = qobject_cast<CanvasWidget*>(object);
    return canvas ? new QAccessibleWidget(canvas, QAccessible::Canvas) : nullptr;
}

bool isShifted(Qt::KeyboardModifiers modifiers)
{
    return modifiers & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
}

} // namespace

CanvasWidget::CanvasWidget(Painting& shown)
    : painting(shown)
{
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed);
    setObjectName(u"Picture1"_s);
    setAccessibleName(u"Canvas"_s);
    resize(canvasOuterSize);
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setEnabled(false);
}

void CanvasWidget::showCursor()
{
    const Tool& tool = toolAt(painting.currentTool);
    const QString name = QLatin1String(tool.icon) + "Cursor"_L1;
    setCursor(QCursor(picture(name, QSize(32, 32)), tool.hotSpot.x(), tool.hotSpot.y()));
}

void CanvasWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setClipRect(QRect(inside, canvasSize));
    painter.translate(inside);
    painter.drawImage(0, 0, painting.Picture1.image);
    if (painting.selection.visible)
        drawSelection(painter, painting.selection);
    if (painting.guides.visible && isEnabled())
        drawGuides(painter, painting.guides);
    if (painting.box.visible)
        drawBand(painter, painting.box);
    if (painting.DottyLine.visible)
        drawDotted(painter, Qt::black,
                   [&] { painter.drawLine(painting.DottyLine.from, painting.DottyLine.to); });
    if (hasFocus() && keysShown)
        drawKeys(painter, keys, keysDown);
}

void CanvasWidget::act(Act routine, const MouseAt& mouse)
{
    guarded([&] { routine(painting, mouse); });
    update();
    Q_EMIT painted();
}

MouseAt CanvasWidget::mouseAt(const QMouseEvent& event) const
{
    return {event.position().toPoint() - inside, event.buttons() != Qt::NoButton,
            isShifted(event.modifiers())};
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) { act(mouseDown, mouseAt(*event)); }
void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) { act(mouseDown, mouseAt(*event)); }
void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) { act(mouseUp, mouseAt(*event)); }

void CanvasWidget::mouseMoveEvent(QMouseEvent* event)
{
    keys = event->position().toPoint() - inside;
    keysShown = false;
    act(mouseMove, mouseAt(*event));
}

// Keys

MouseAt CanvasWidget::keysAt(Qt::KeyboardModifiers modifiers) const
{
    return {keys, keysDown, bool(modifiers & Qt::ShiftModifier)};
}

void CanvasWidget::keyPressEvent(QKeyEvent* event)
{
    const QPoint way = wayOf(event->key());
    keysShown = true;
    if (!way.isNull())
        moveKeys(way, event->modifiers());
    else if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        pressKeys(event->modifiers());
    else
        QWidget::keyPressEvent(event);
}

void CanvasWidget::moveKeys(QPoint by, Qt::KeyboardModifiers modifiers)
{
    const bool snaps = toolAt(painting.currentTool).snaps;
    const int step = modifiers & Qt::ControlModifier ? 1 : snaps ? painting.snapGrid : keyStep;
    const QPoint to = keys + step * by;
    keys = {qBound(0, to.x(), canvasSize.width() - 1), qBound(0, to.y(), canvasSize.height() - 1)};
    act(mouseMove, keysAt(modifiers));
    tellPlace();
}

/// Space puts the pen down and lifts it again. A tool that does all at once needs no second one.
void CanvasWidget::pressKeys(Qt::KeyboardModifiers modifiers)
{
    const bool began = !keysDown;
    keysDown = began && toolAt(painting.currentTool).move;
    act(began ? mouseDown : mouseUp, {keys, began, bool(modifiers & Qt::ShiftModifier)});
    tellPlace();
}

void CanvasWidget::liftKeys()
{
    if (!keysDown)
        return;
    keysDown = false;
    act(mouseUp, keysAt({}));
}

void CanvasWidget::tellPlace()
{
    const QString pen = keysDown ? u"Pen down"_s : u"Pen up"_s;
    setAccessibleDescription(u"%1, %2 from the left, %3 from above"_s.arg(pen).arg(keys.x()).arg(keys.y()));
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

void CanvasWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    keysShown = event->reason() != Qt::MouseFocusReason && event->reason() != Qt::OtherFocusReason;
    tellPlace();
}

void CanvasWidget::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    liftKeys();
}

// Drops

void CanvasWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (!firstFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void CanvasWidget::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    Q_EMIT fileDropped(firstFile(*event->mimeData()));
}
