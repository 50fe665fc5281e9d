// The chart on view on paper.
#pragma once

#include "platform/page.h"

/// Draws the chart in the upper left corner of the page's drawing area. Raises 380 when there is none.
void drawGraphPage(Page& page);
