// From the numbers of a chart to the marks on an axis.
#pragma once

#include "platform/chart.h"

struct AxisScale {
    double from = 0;
    double to = 1;
    std::vector<double> ticks; // rising, all within the scale
    std::vector<double> minorTicks;

    /// Where the value lies: 0 at the scale's beginning, 1 at its end.
    double share(double value) const { return (value - from) / (to - from); }
    bool contains(double value) const { return value >= from && value <= to; }
};

/// The scale as it is drawn for values from `lowest` to `highest`. An automatic one has up to eight parts of
/// a round size; with `fromZero` it begins at zero or goes through it.
AxisScale scaleFor(const ValueScale& wanted, double lowest, double highest, bool fromZero);
