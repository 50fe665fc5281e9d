#include "analysis/printGraph.h"

#include "analysis/printLayout.h"
#include "core/mainView.h"
#include "platform/errors.h"

void drawGraphPage(Page& page)
{
    const ChartDrawing chart = mainView.chartDrawing();
    if (chart.size.isEmpty())
        throw RuntimeError(invalidProperty);
    page.setUnit(Page::Unit::points);
    const PrintLayout place = printLayout(page, 1);
    const double height = place.printWidth * chart.size.height() / chart.size.width();
    page.drawing({place.printMargin, place.printMargin, place.printWidth, height}, chart.size, chart.paint);
}
