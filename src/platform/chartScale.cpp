#include "platform/chartScale.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostParts = 8;

constexpr double mostDivisions = 1000; // more can't be told apart on any screen

double base(const ValueScale& scale) { return std::max(0.0, scale.minimum); }
double partOf(const ValueScale& scale) { return (scale.maximum - base(scale)) / scale.majorDivision; }

bool canBeDrawn(const ValueScale& scale)
{
    return !scale.automatic && scale.majorDivision > 0 && scale.maximum > base(scale) &&
           scale.maximum - scale.minimum <= mostDivisions * partOf(scale);
}

/// 1, 2 or 5 times a power of ten: the smallest of which no more than `mostParts` cover the span.
double roundPart(double span)
{
    const double power = std::pow(10, std::floor(std::log10(span / mostParts)));
    for (const double part : {1.0, 2.0, 5.0}) {
        if (span <= part * power * mostParts)
            return part * power;
    }
    return 10 * power;
}

/// Every multiple of the part, counted from `base`, that lies on the scale.
std::vector<double> marks(double origin, double part, double from, double to)
{
    constexpr double slack = 1e-9; // a mark that rounding has pushed over the end still counts
    std::vector<double> found;
    const double last = std::floor((to - origin) / part + slack);
    for (double k = std::ceil((from - origin) / part - slack); k <= last; ++k)
        found.push_back(origin + k * part);
    return found;
}

AxisScale marked(double origin, double part, double from, double to, int minorDivision)
{
    AxisScale scale{from, to, marks(origin, part, from, to), {}};
    if (minorDivision > 1)
        scale.minorTicks = marks(origin, part / minorDivision, from, to);
    return scale;
}

} // namespace

AxisScale scaleFor(const ValueScale& wanted, double lowest, double highest, bool fromZero)
{
    if (canBeDrawn(wanted))
        return marked(base(wanted), partOf(wanted), wanted.minimum, wanted.maximum, wanted.minorDivision);
    if (fromZero) {
        lowest = std::min(lowest, 0.0);
        highest = std::max(highest, 0.0);
    }
    // Values that a few digits can't tell apart would need more digits than fit beside the axis.
    const double least = std::max(std::abs(lowest), std::abs(highest)) * 1e-5;
    if (highest - lowest <= least) {
        lowest -= fromZero ? 0 : std::max(least, 1.0);
        highest += std::max(least, 1.0);
    }
    const double part = roundPart(highest - lowest);
    const double from = std::floor(lowest / part) * part;
    return marked(0, part, from, std::ceil(highest / part) * part, 1);
}
