#include "paint/constraints.h"

#include <algorithm>
#include <cmath>
#include <numbers>

QPointF snapped(QPointF point, int pitch)
{
    const auto nearest = [pitch](double value) { return std::floor(value / pitch + 0.5) * pitch; };
    return {nearest(point.x()), nearest(point.y())};
}

QRectF squareFrom(QPointF start, QPointF end)
{
    const double side = std::min(std::abs(end.x() - start.x()), std::abs(end.y() - start.y()));
    return {end.x() > start.x() ? start.x() : start.x() - side,
            end.y() > start.y() ? start.y() : start.y() - side, side, side};
}

QPointF bentTo45Degrees(QPointF start, QPointF end)
{
    constexpr double step = std::numbers::pi / 4;
    const QPointF way = end - start;
    const double turns = std::floor(std::atan2(way.y(), way.x()) / step + 0.5);
    const double length = std::hypot(way.x(), way.y());
    return start + length * QPointF(std::cos(turns * step), std::sin(turns * step));
}

int direction(double way) { return (way > 0) - (way < 0); }
