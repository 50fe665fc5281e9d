// Where a drag may lead: onto the grid, into a square, along eight directions.
#pragma once

#include <QPointF>
#include <QRectF>

/// The nearest point of a grid of that pitch; halves go right and down. -7 at a pitch of 12 gives -12.
QPointF snapped(QPointF point, int pitch);

/// The square from `start` in the direction of `end`, as wide as the smaller of the two spans.
QRectF squareFrom(QPointF start, QPointF end);

/// The end of a line as long as that from `start` to `end`, turned to the nearest multiple of 45 degrees.
QPointF bentTo45Degrees(QPointF start, QPointF end);

/// 1 to the right or down, -1 to the left or up, 0 for no way at all.
int direction(double way);
