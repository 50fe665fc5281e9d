// The scattergram: a point for each pair of numbers, joined by a line or not.
#include "platform/chartAxes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double markerRadius = 7;

AxisScale scaleOfColumn(const Chart& chart, int column)
{
    double lowest = 0;
    double highest = 0;
    for (int row = 1; row <= chart.rowCount(); ++row) {
        const double number = chart.data(row, column);
        lowest = row == 1 ? number : std::min(lowest, number);
        highest = row == 1 ? number : std::max(highest, number);
    }
    return scaleFor(chart.axis.at(std::size_t(column - 1)).scale, lowest, highest, false);
}

/// A point beyond a fixed scale isn't drawn, yet still read out.
void addPoint(const Chart& chart, const Axes& axes, int row, ChartLayout& layout, double radius)
{
    const double x = chart.data(row, 1);
    const double y = chart.data(row, 2);
    const QString words = chartNumber(x) + u", "_s + chartNumber(y);
    if (!axes.x.contains(x) || !axes.y.contains(y)) {
        layout.marks.push_back({words, {}, {}});
        return;
    }
    QPainterPath marker;
    marker.addEllipse(QPointF(axes.xOf(x), axes.yOf(y)), radius, radius);
    if (chart.series.markerAuto)
        layout.shapes.push_back({marker});
    layout.marks.push_back({words, marker, marker});
}

} // namespace

void layOutScatter(const Chart& chart, QRectF room, ChartLayout& layout, ChartWriter& writer)
{
    Axes axes;
    axes.x = scaleOfColumn(chart, 1);
    axes.y = scaleOfColumn(chart, 2);
    layOutNumberAxes(chart, room, axes, layout, writer);
    layout.plot = axes.plot;
    ChartLine curve{{}, ChartStroke::curve};
    for (int row = 1; row <= chart.rowCount(); ++row) {
        curve.points << QPointF(axes.xOf(chart.data(row, 1)), axes.yOf(chart.data(row, 2)));
        addPoint(chart, axes, row, layout, writer.scaled(markerRadius));
    }
    if (chart.series.showLine)
        layout.lines.push_back(curve);
}
