// Where everything in a chart lies: worked out once for a size, then drawn, pointed at and read out.
//
// No text overlaps another or falls off: labels turn, thin out or are cut with "…".
#pragma once

#include "platform/chart.h"
#include "platform/chartParts.h"

/// Lays the chart out. The font's size is taken in pixels.
ChartLayout layOutChart(const Chart& chart, QSizeF size, const QFont& labels);
