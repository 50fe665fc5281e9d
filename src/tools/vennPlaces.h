// The geometry of a Venn display: the circles, and the places of the cards in them.
#pragma once

#include <QPointF>
#include <QSizeF>

enum class VennRegion { both, leftOnly, rightOnly, neither };

/// Sizes and places the frame and the circles for the present board, so that a card fits into the lens and
/// into each crescent.
void layoutVenn();

/// The centre of a card of that size in its region: entirely inside both circles, one, or neither. `part`, 0
/// up to but not including 1, runs through the region.
QPointF vennPlace(VennRegion region, double part, QSizeF card);
