#include "platform/chartLayout.h"

#include "platform/chartWriter.h"

#include <algorithm>

namespace {

/// On a large screen everything grows, so that it can be read from the back of the class.
double scaleFor(QSizeF size)
{
    return std::clamp(std::min(size.width() / 960, size.height() / 540), 1.0, 3.0);
}

} // namespace

ChartLayout layOutChart(const Chart& chart, QSizeF size, const QFont& labels)
{
    ChartLayout layout;
    layout.size = size;
    layout.scale = scaleFor(size);
    ChartWriter writer(layout, labels);
    const QRectF room = layOutHead(chart, layout, writer);
    switch (chart.chartType) {
    case ChartType::pie:
        layOutPie(chart, room, layout, writer);
        break;
    case ChartType::scatter:
        layOutScatter(chart, room, layout, writer);
        break;
    default:
        layOutBars(chart, room, layout, writer);
    }
    return layout;
}
