#include "paint/selection.h"

#include "paint/constraints.h"
#include "paint/painting.h"

#include <algorithm>

namespace {

constexpr int handleSize = 16;
constexpr int edge = 4; // kept free at the canvas's right and lower edge, counted from its outer size
constexpr QRgb white = 0xFFFFFFFF;

QRectF selectedArea(const Painting& painting, const MouseAt& mouse)
{
    const QPointF start(painting.dragOffsetX, painting.dragOffsetY);
    const QPointF end(std::clamp(mouse.at.x(), 0, canvasOuterSize.width() - edge),
                      std::clamp(mouse.at.y(), 0, canvasOuterSize.height() - edge));
    return mouse.shifted ? squareFrom(start, end) : QRectF(start, end).normalized();
}

void cutOut(Painting& painting, const QRectF& area)
{
    Canvas& canvas = painting.Picture1;
    painting.selection.selectedBitMap = canvas.image.copy(area.toRect());
    painting.box.place = area.adjusted(-1, -1, 1, 1);
    const QRgb colour = canvas.foreColour;
    canvas.foreColour = white;
    canvas.filledBox(area.topLeft(), area.bottomRight());
    canvas.foreColour = colour;
}

} // namespace

void openSelection(Painting& painting, const MouseAt& mouse)
{
    painting.dragOffsetX = mouse.at.x();
    painting.dragOffsetY = mouse.at.y();
    painting.box.place = QRectF(mouse.at, QSizeF());
    painting.box.fillColour = painting.Picture1.fillColour;
    painting.box.visible = true;
}

void pullSelection(Painting& painting, const MouseAt& mouse)
{
    if (mouse.pressed)
        painting.box.place = selectedArea(painting, mouse);
}

void liftSelection(Painting& painting, const MouseAt& mouse)
{
    const QRectF area = selectedArea(painting, mouse);
    painting.selection = {QImage(), area, true, {}, true};
    placeSelectionHandles(painting, painting.box.place);
    if (area.width() > 1 && area.height() > 1)
        cutOut(painting, area);
    else
        painting.selection.handlesVisible = false;
}

void placeSelectionHandles(Painting& painting, const QRectF& area)
{
    painting.selection.PicHandle = {
        QPointF(area.right(), area.top() - handleSize),
        QPointF(area.right(), area.bottom()),
        QPointF(area.left() - handleSize, area.bottom()),
        QPointF(area.left() - handleSize, area.top() - handleSize),
    };
}
