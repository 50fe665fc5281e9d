// Bars, solid bars and lines: a name below, a number's height above.
#include "platform/chartAxes.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double barShare = 0.68; // of its slot
constexpr double widestBar = 180;
constexpr double markerRadius = 6;
constexpr double mostDepth = 18; // of a solid bar

void addPolygon(ChartLayout& layout, const QPolygonF& corners, int shade)
{
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    layout.shapes.push_back({path, 0, 0, shade});
}

QRectF barOf(const Axes& axes, int row, int count, double value, double widest)
{
    const double slot = axes.slot(count);
    const double width = std::clamp(std::round(slot * barShare), 1.0, widest);
    const double left = std::round(axes.plot.left() + (row - 0.5) * slot - width / 2);
    const double zero = axes.yOf(std::clamp(0.0, axes.y.from, axes.y.to));
    const double end = axes.yOf(std::clamp(value, axes.y.from, axes.y.to));
    return {left, std::min(zero, end), width, std::abs(end - zero)};
}

/// The front, and where they can be seen the lighter top and the darker side. The side ends before the next
/// bar begins.
void addSolidBar(ChartLayout& layout, const QRectF& bar, double depth)
{
    const QPointF back(depth, -depth);
    addPolygon(layout, {bar.topRight(), bar.topRight() + back, bar.bottomRight() + back, bar.bottomRight()},
               -1);
    addPolygon(layout, {bar.topLeft(), bar.topLeft() + back, bar.topRight() + back, bar.topRight()}, 1);
    addPolygon(layout, bar, 0);
}

/// A bar answers to the pointer in its whole slot: also a flat one can be found.
QPainterPath slotOf(const Axes& axes, int row, int count)
{
    QPainterPath path;
    path.addRect(axes.plot.left() + (row - 1) * axes.slot(count), axes.plot.top() - axes.depth,
                 axes.slot(count), axes.plot.height() + axes.depth);
    return path;
}

QString wordsFor(const Chart& chart, int row)
{
    const QString label = chart.rowLabel(row).simplified();
    const QString number = chartNumber(chart.data(row, 1));
    return label.isEmpty() ? number : label + u": "_s + number;
}

void addBar(const Chart& chart, const Axes& axes, int row, ChartLayout& layout, const ChartWriter& writer)
{
    const QRectF bar =
        barOf(axes, row, chart.rowCount(), chart.data(row, 1), std::round(writer.scaled(widestBar)));
    if (axes.depth > 0)
        addSolidBar(layout, bar, axes.depth);
    else
        addPolygon(layout, bar, 0);
    QPainterPath outline;
    outline.addRect(bar);
    layout.marks.push_back({wordsFor(chart, row), outline, slotOf(axes, row, chart.rowCount())});
}

void addLine(const Chart& chart, const Axes& axes, ChartLayout& layout, const ChartWriter& writer)
{
    const double radius = writer.scaled(markerRadius);
    ChartLine curve{{}, ChartStroke::curve};
    for (int row = 1; row <= chart.rowCount(); ++row) {
        const double value = std::clamp(chart.data(row, 1), axes.y.from, axes.y.to);
        const QPointF point(axes.plot.left() + (row - 0.5) * axes.slot(chart.rowCount()), axes.yOf(value));
        curve.points << point;
        QPainterPath marker;
        marker.addEllipse(point, radius, radius);
        layout.shapes.push_back({marker});
        layout.marks.push_back({wordsFor(chart, row), marker, slotOf(axes, row, chart.rowCount())});
    }
    layout.lines.push_back(curve);
}

} // namespace

void layOutBars(const Chart& chart, QRectF room, ChartLayout& layout, ChartWriter& writer)
{
    double lowest = 0;
    double highest = 0;
    for (int row = 1; row <= chart.rowCount(); ++row) {
        lowest = std::min(lowest, chart.data(row, 1));
        highest = std::max(highest, chart.data(row, 1));
    }
    Axes axes;
    axes.y = scaleFor(chart.axis[1].scale, lowest, highest, true);
    if (chart.chartType == ChartType::bars3d) {
        const double gap = room.width() * 0.85 / std::max(1, chart.rowCount()) * (1 - barShare);
        axes.depth = std::floor(std::min(gap * 0.8, writer.scaled(mostDepth)));
    }
    layOutNamedAxes(chart, room, axes, layout, writer);
    layout.plot = axes.plot;
    if (chart.chartType == ChartType::line) {
        addLine(chart, axes, layout, writer);
        return;
    }
    for (int row = 1; row <= chart.rowCount(); ++row)
        addBar(chart, axes, row, layout, writer);
}
