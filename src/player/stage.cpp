#include "player/stage.h"

#include "platform/picture.h"
#include "platform/stretching.h"

#include <QHash>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

constexpr int frame = 3;
constexpr QSize markSize(48, 48);
constexpr QPointF tip(8, 6);                    // of the pointer's picture
constexpr QPointF mousePlace(20, 22);           // of the mouse beside it
constexpr double leastRing = 20, mostRing = 76; // its width

const QPixmap& mark(const char* name)
{
    static QHash<QByteArray, QPixmap> known;
    QPixmap& found = known[name];
    if (found.isNull())
        found = picture(QLatin1String(name), markSize);
    return found;
}

void drawRing(QPainter& painter, QPointF place, const PressRing& ring)
{
    const double width = leastRing + (mostRing - leastRing) * ring.growth;
    QRectF area(0, 0, width, width);
    area.moveCenter(place);
    painter.setOpacity(1 - ring.growth * ring.growth * ring.growth);
    painter.drawPixmap(area, mark("pressRing"), mark("pressRing").rect());
    painter.setOpacity(1);
}

} // namespace

Stage::Stage()
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(160, 90);
}

void Stage::showScreen(const QImage& screen)
{
    source = screen;
    scaleScreen();
}

void Stage::showPointer(const std::optional<PointerView>& pointer)
{
    if (pointer == shown)
        return;
    update(marksArea());
    shown = pointer;
    update(marksArea());
}

/// In the middle, in the proportions of the recorded screen.
QRectF Stage::pictureArea() const
{
    const QSize room = size() - QSize(2 * frame, 2 * frame);
    QRect area({}, source.size().scaled(room, Qt::KeepAspectRatio));
    area.moveCenter(rect().center());
    return area;
}

QPointF Stage::onStage(QPointF place) const
{
    const QRectF area = pictureArea();
    return area.topLeft() + place * (area.width() / source.width());
}

/// What pointer and ring cover.
QRect Stage::marksArea() const
{
    if (!shown || source.isNull())
        return {};
    constexpr int reach = 80;
    return QRect(-reach, -reach, 2 * reach, 2 * reach).translated(onStage(shown->place).toPoint());
}

void Stage::scaleScreen()
{
    if (source.isNull())
        return;
    const double ratio = devicePixelRatioF();
    const QSize size = (pictureArea().size() * ratio).toSize();
    scaled = QPixmap::fromImage(stretched(source, size));
    scaled.setDevicePixelRatio(ratio);
    update();
}

void Stage::resizeEvent(QResizeEvent*) { scaleScreen(); }

void Stage::paintEvent(QPaintEvent*)
{
    if (source.isNull())
        return;
    QPainter painter(this);
    QStyleOption ground;
    ground.initFrom(this);
    ground.rect = pictureArea().toRect().adjusted(-frame, -frame, frame, frame);
    style()->drawPrimitive(QStyle::PE_Widget, &ground, &painter, this);
    painter.drawPixmap(pictureArea().topLeft(), scaled);
    if (!shown)
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPointF place = onStage(shown->place);
    if (shown->ring)
        drawRing(painter, place, *shown->ring);
    painter.drawPixmap(place - tip, mark("lessonPointer"));
    if (shown->ring && shown->ring->right)
        painter.drawPixmap(place + mousePlace, mark("mouseRight"));
}
