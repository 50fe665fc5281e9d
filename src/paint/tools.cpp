#include "paint/tools.h"

#include "paint/blit.h"
#include "paint/constraints.h"
#include "paint/floodFill.h"
#include "paint/selection.h"
#include "paint/spray.h"
#include "paint/typing.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int textTool = 7;
constexpr int sprayTool = 11;

QPointF dragStart(const Painting& painting) { return {painting.dragOffsetX, painting.dragOffsetY}; }

void startDrag(Painting& painting, const MouseAt& mouse)
{
    painting.dragOffsetX = mouse.at.x();
    painting.dragOffsetY = mouse.at.y();
}

// Brushes

void dab(Painting& painting, const MouseAt& mouse)
{
    if (mouse.pressed)
        painting.Picture1.line(mouse.at, mouse.at);
}

void brushOn(Painting& painting, const MouseAt& mouse)
{
    if (mouse.pressed)
        painting.Picture1.line(painting.Picture1.pen, mouse.at);
}

// Rectangles and ellipses

void openBand(Painting& painting, const MouseAt& mouse)
{
    startDrag(painting, mouse);
    painting.box.place = QRectF(mouse.at, QSizeF());
    painting.box.fillColour = painting.Picture1.fillColour;
    painting.box.visible = true;
}

QRectF draggedArea(const Painting& painting, const MouseAt& mouse)
{
    const QPointF start = dragStart(painting);
    return mouse.shifted ? squareFrom(start, mouse.at) : QRectF(start, mouse.at).normalized();
}

void pullBand(Painting& painting, const MouseAt& mouse)
{
    if (mouse.pressed)
        painting.box.place = draggedArea(painting, mouse);
}

void drawBox(Painting& painting, const MouseAt& mouse)
{
    painting.box.visible = false;
    const QRectF area = draggedArea(painting, mouse);
    painting.Picture1.fillStyle = FillStyle::transparent;
    painting.Picture1.box(area.topLeft(), area.bottomRight());
}

void drawFilledBox(Painting& painting, const MouseAt& mouse)
{
    painting.box.visible = false;
    const QRectF area = draggedArea(painting, mouse);
    painting.Picture1.filledBox(area.topLeft(), area.bottomRight());
}

void drawStretchedEllipse(Painting& painting, const MouseAt& mouse)
{
    const QPointF centre = (dragStart(painting) + mouse.at) / 2;
    const auto radiusOf = [](double span) { return span == 0 ? 1 : std::abs(span); };
    const double rx = radiusOf(centre.x() - mouse.at.x());
    const double ry = radiusOf(centre.y() - mouse.at.y());
    painting.Picture1.circle(centre, std::max(rx, ry), ry / rx);
}

/// The circle of a drag straight along an axis has no radius. Its middle lies at 0 on the other axis.
void drawRoundEllipse(Painting& painting, const MouseAt& mouse)
{
    const QPointF way = mouse.at - dragStart(painting);
    const double radius = std::min(std::abs(way.x()), std::abs(way.y())) / 2;
    const auto middle = [radius](double start, double span) {
        return span == 0 ? 0 : start + direction(span) * radius;
    };
    const QPointF centre(middle(painting.dragOffsetX, way.x()), middle(painting.dragOffsetY, way.y()));
    painting.Picture1.circle(centre, radius);
}

template <FillStyle style>
void drawEllipse(Painting& painting, const MouseAt& mouse)
{
    painting.box.visible = false;
    painting.Picture1.fillStyle = style;
    mouse.shifted ? drawRoundEllipse(painting, mouse) : drawStretchedEllipse(painting, mouse);
}

// The line

void openLine(Painting& painting, const MouseAt& mouse)
{
    if (mouse.pressed)
        painting.DottyLine = {mouse.at, mouse.at, true};
}

void pullLine(Painting& painting, const MouseAt& mouse)
{
    BandLine& line = painting.DottyLine;
    if (mouse.pressed)
        line.to = mouse.shifted ? bentTo45Degrees(line.from, mouse.at) : QPointF(mouse.at);
}

void drawLine(Painting& painting, const MouseAt&)
{
    painting.Picture1.line(painting.DottyLine.from, painting.DottyLine.to);
    painting.DottyLine.visible = false;
}

// Text, paint pot, spray can, colour picker

void placeText(Painting& painting, const MouseAt& mouse) { openText(painting, mouse.at); }

void pour(Painting& painting, const MouseAt& mouse)
{
    floodFill(painting.Picture1.image, mouse.at, painting.Picture1.foreColour);
    painting.Picture1.fillStyle = FillStyle::transparent;
}

void sprayOn(Painting& painting, const MouseAt& mouse)
{
    if (mouse.pressed)
        stampSprayBrush(painting, mouse.at);
}

void spray(Painting& painting, const MouseAt& mouse)
{
    stampSprayBrush(painting, mouse.at);
    regenerateSprayBrush(painting);
}

/// The colour picked is always kept in the first swatch.
void pickColour(Painting& painting, const MouseAt& mouse)
{
    const QRgb picked = painting.Picture1.point(mouse.at);
    painting.colourSwatch[0] = picked == 0 ? painting.colourSwatch[0] : picked;
    selectColour(painting, 0);
}

void backToBrush(Painting& painting, const MouseAt&) { selectTool(painting, 0); }

constexpr auto rectangle = BandKind::rectangle;
constexpr auto oval = BandKind::oval;
constexpr std::nullopt_t hidden = std::nullopt;
constexpr QPoint crosshair(9, 9);

const Table<Tool, numTools - 1> tools = [] {
    Table<Tool, numTools - 1> made;
    // clang-format off
    made[0] = {"Thin brush", "Draw with the mouse.", "toolThinBrush", {3, 29}, QPoint(8, 16), 2, {}, false, false, dab, brushOn};
    made[1] = {"Wide brush", "Draw with the mouse.", "toolWideBrush", {4, 28}, QPoint(44, 16), 8, {}, false, false, dab, brushOn};
    made[2] = {"Rectangle", "Drag. Hold Shift for a square.", "toolBox", crosshair, QPoint(8, 56), 2, rectangle, true, true, openBand, pullBand, drawBox};
    made[3] = {"Filled rectangle", "Drag. Hold Shift for a square.", "toolFilledBox", crosshair, QPoint(44, 56), 2, rectangle, true, true, openBand, pullBand, drawFilledBox};
    made[4] = {"Ellipse", "Drag. Hold Shift for a circle.", "toolEllipse", crosshair, QPoint(8, 88), 2, oval, true, true, openBand, pullBand, drawEllipse<FillStyle::transparent>};
    made[5] = {"Filled ellipse", "Drag. Hold Shift for a circle.", "toolFilledEllipse", crosshair, QPoint(44, 88), 2, oval, true, true, openBand, pullBand, drawEllipse<FillStyle::solid>};
    made[6] = {"Straight line", "Drag. Hold Shift to keep it straight.", "toolLine", crosshair, QPoint(8, 120), 2, BandKind::line, true, true, openLine, pullLine, drawLine};
    made[7] = {"Text", "Click, type, then press Return.", "toolText", {3, 16}, QPoint(44, 120), 2, BandKind::text, false, false, placeText};
    made[8] = {"Selection Tool", "", "toolBox", crosshair, hidden, 2, rectangle, false, false, openSelection, pullSelection, liftSelection};
    made[9] = {"Fill", "Click an area to fill it.", "toolFill", {5, 27}, QPoint(44, 160), 1, {}, false, false, pour};
    made[10] = {"Zoom Tool", "", "toolThinBrush", {3, 29}, hidden};
    made[11] = {"Spray can", "Click or drag to spray.", "toolSpray", {4, 10}, QPoint(8, 160), 2, {}, false, false, spray, sprayOn};
    made[12] = {"Colour picker", "", "toolThinBrush", {3, 29}, hidden, 0, {}, false, false, pickColour, nullptr, backToBrush};
    // clang-format on
    return made;
}();

} // namespace

const Tool& toolAt(int index) { return tools[index]; }

void selectTool(Painting& painting, int index)
{
    const Tool& tool = toolAt(index);
    painting.guides.visible = tool.guides && painting.guidesShown;
    painting.currentTool = index;
    if (tool.penWidth > 0)
        painting.Picture1.penWidth = tool.penWidth;
    if (tool.band == BandKind::rectangle || tool.band == BandKind::oval)
        painting.box.oval = tool.band == BandKind::oval;
    if (index == textTool)
        changeText(painting, {});
    if (index == sprayTool)
        regenerateSprayBrush(painting);
}

void clickTool(Painting& painting, int index)
{
    selectTool(painting, index);
    painting.enabled = true;
}

void selectColour(Painting& painting, int index)
{
    const QRgb colour = painting.colourSwatch[index];
    painting.selectedColour = index;
    painting.Picture1.foreColour = colour;
    painting.Picture1.fillColour = colour;
    if (painting.currentTool == sprayTool)
        regenerateSprayBrush(painting);
    painting.Text1.foreColour = colour;
}
