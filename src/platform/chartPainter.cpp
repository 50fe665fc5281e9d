#include "platform/chartPainter.h"

#include <QImage>
#include <QPainter>

namespace {

QPen penFor(ChartStroke stroke, const ChartLook& look, double scale)
{
    switch (stroke) {
    case ChartStroke::grid:
        return {look.grid, scale};
    case ChartStroke::curve:
        return {look.curve, 4 * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
    default:
        return {look.ink, 2 * scale};
    }
}

void paintLines(QPainter& painter, const std::vector<ChartLine>& lines, const ChartLayout& layout,
                const ChartLook& look)
{
    for (const ChartLine& line : lines) {
        painter.setPen(penFor(line.stroke, look, layout.scale));
        if (line.stroke == ChartStroke::curve) { // it may lead to a point that is off the scale
            painter.save();
            const double margin = 2 * layout.scale;
            painter.setClipRect(layout.plot.adjusted(-margin, -margin, margin, margin), Qt::IntersectClip);
            painter.drawPolyline(line.points);
            painter.restore();
        } else {
            painter.drawPolyline(line.points);
        }
    }
}

/// Stripes and dots of a fixed distance, whatever the slice they lie on.
void paintPattern(QPainter& painter, const ChartShape& shape, const ChartLook& look, double scale)
{
    const QRectF area = shape.path.boundingRect();
    const double step = 12 * scale;
    QColor ink = look.ink;
    ink.setAlphaF(0.45F);
    painter.save();
    painter.setClipPath(shape.path, Qt::IntersectClip);
    painter.setPen(QPen(ink, 2 * scale, Qt::SolidLine, Qt::RoundCap));
    const double reach = area.height();
    for (double x = area.left() - reach; x < area.right() + reach; x += step) {
        if (shape.pattern == 1 || shape.pattern == 4)
            painter.drawLine(QPointF(x, area.bottom()), QPointF(x + reach, area.top()));
        if (shape.pattern == 3 || shape.pattern == 4)
            painter.drawLine(QPointF(x, area.top()), QPointF(x + reach, area.bottom()));
    }
    if (shape.pattern == 2) {
        painter.setPen(QPen(ink, 5 * scale, Qt::SolidLine, Qt::RoundCap));
        for (double y = area.top() + step / 3; y < area.bottom(); y += step) {
            for (double x = area.left() + step / 3; x < area.right(); x += step)
                painter.drawPoint(QPointF(x, y));
        }
    }
    painter.restore();
}

QColor fillOf(const ChartShape& shape, const ChartLook& look)
{
    const QColor fill = look.fills.at(std::size_t(shape.colour));
    return shape.shade > 0 ? fill.lighter(125) : shape.shade < 0 ? fill.darker(135) : fill;
}

void paintShapes(QPainter& painter, const ChartLayout& layout, const ChartLook& look)
{
    const QPen outline(look.ink, 2 * layout.scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    for (const ChartShape& shape : layout.shapes) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(fillOf(shape, look));
        if (shape.pattern != 0) {
            painter.drawPath(shape.path);
            paintPattern(painter, shape, look, layout.scale);
            painter.setBrush(Qt::NoBrush);
        }
        painter.setPen(outline);
        painter.drawPath(shape.path);
    }
    painter.setBrush(Qt::NoBrush);
}

void paintText(QPainter& painter, const ChartText& text, const ChartLook& look, double scale)
{
    painter.save();
    painter.translate(text.anchor);
    painter.rotate(text.angle);
    const QRectF line(-text.align * text.length, -text.height / 2, text.length, text.height);
    if (text.onPaper) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(look.paper);
        painter.drawRoundedRect(line.adjusted(-4 * scale, 0, 4 * scale, 0), 6 * scale, 6 * scale);
    }
    painter.setPen(look.ink);
    constexpr double baseline = 0.77; // of the line: below it is room for the tails
    painter.drawText(QPointF(line.left(), line.top() + baseline * line.height()), text.text);
    painter.restore();
}

void paintTexts(QPainter& painter, const ChartLayout& layout, const ChartLook& look)
{
    for (const auto role : {ChartTextRole::title, ChartTextRole::axisTitle, ChartTextRole::label}) {
        painter.setFont(chartFont(look.font, role, layout.scale));
        for (const ChartText& text : layout.texts) {
            if (text.role == role)
                paintText(painter, text, look, layout.scale);
        }
    }
}

} // namespace

void paintChart(QPainter& painter, const ChartLayout& layout, const ChartLook& look)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(QPointF(), layout.size), look.paper);
    paintLines(painter, layout.lines, layout, look);
    paintShapes(painter, layout, look);
    paintLines(painter, layout.linesAbove, layout, look);
    paintTexts(painter, layout, look);
    painter.restore();
}

QImage chartPicture(const Chart& chart, QSize size, double ratio, const ChartLook& look)
{
    QImage picture((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    constexpr double inch = 0.0254;                      // metres
    picture.setDotsPerMeterX(qRound(96 * ratio / inch)); // pasted, it is as large as on the screen
    picture.setDotsPerMeterY(picture.dotsPerMeterX());
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    paintChart(painter, layOutChart(chart, QSizeF(size), look.font), look);
    return picture;
}
