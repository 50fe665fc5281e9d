// The two axes of a chart with their titles, marks and labels. For the chart's own files.
#pragma once

#include "platform/chartScale.h"
#include "platform/chartWriter.h"

struct Axes {
    AxisScale x; // only of a chart whose X axis is one of numbers
    AxisScale y;
    QRectF plot;
    double depth = 0; // of solid bars: how far the back wall is to the right and above

    double xOf(double value) const { return plot.left() + plot.width() * x.share(value); }
    double yOf(double value) const { return plot.bottom() - plot.height() * y.share(value); }
    /// The width that one of `count` labels has along the X axis.
    double slot(int count) const { return plot.width() / count; }
};

/// Names along the X axis, one for each bar or point of a line.
void layOutNamedAxes(const Chart& chart, QRectF room, Axes& axes, ChartLayout& layout, ChartWriter& writer);
/// Numbers along both axes.
void layOutNumberAxes(const Chart& chart, QRectF room, Axes& axes, ChartLayout& layout, ChartWriter& writer);
