#include "platform/chartAxes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double tickLength = 6;
constexpr double labelGap = 4;

std::vector<QString> tickTexts(const AxisScale& scale)
{
    std::vector<QString> texts;
    for (const double tick : scale.ticks)
        texts.push_back(chartNumber(tick));
    return texts;
}

/// Takes the room of the axes' titles and of the labels of the Y axis.
QRectF layOutTitlesAndMargin(const Chart& chart, QRectF room, const Axes& axes, ChartWriter& writer)
{
    const double height = writer.lineHeight(ChartTextRole::axisTitle);
    const auto& [xTitle, yTitle] = std::pair(chart.axis[0].title, chart.axis[1].title);
    if (!xTitle.simplified().isEmpty()) {
        writer.add(writer.line(xTitle, {room.center().x(), room.bottom() - height / 2}, 0.5, room.width(),
                               ChartTextRole::axisTitle));
        room.setBottom(room.bottom() - height - writer.scaled(labelGap));
    }
    if (!yTitle.simplified().isEmpty()) {
        writer.add(writer.line(yTitle, {room.left() + height / 2, room.center().y()}, 0.5, room.height(),
                               ChartTextRole::axisTitle, -90));
        room.setLeft(room.left() + height + writer.scaled(labelGap));
    }
    room.setLeft(room.left() + writer.widest(tickTexts(axes.y)) + writer.scaled(tickLength + labelGap));
    room.setTop(room.top() + writer.lineHeight() / 2);
    return room;
}

/// Every how manieth label is written so that each has `needed` pixels.
int everyNth(double needed, double distance) { return std::max(1, int(std::ceil(needed / distance))); }

/// Marks below or above zero are left out evenly, so that zero keeps its mark.
bool isWritten(const AxisScale& scale, std::size_t tick, int nth)
{
    const auto zero =
        std::find_if(scale.ticks.begin(), scale.ticks.end(), [](double t) { return std::abs(t) < 1e-9; });
    const auto origin = zero == scale.ticks.end() ? 0 : zero - scale.ticks.begin();
    return (std::ptrdiff_t(tick) - origin) % nth == 0;
}

double distanceOfTicks(const AxisScale& scale, double length)
{
    return scale.ticks.size() < 2 ? length
                                  : length * (scale.share(scale.ticks[1]) - scale.share(scale.ticks[0]));
}

void layOutYAxis(const Axes& axes, ChartLayout& layout, ChartWriter& writer)
{
    const QRectF& plot = axes.plot;
    const double tick = writer.scaled(tickLength);
    const int nth = everyNth(writer.lineHeight(), distanceOfTicks(axes.y, plot.height()));
    const QPointF back(axes.depth, -axes.depth);
    for (std::size_t i = 0; i < axes.y.ticks.size(); ++i) {
        const QPointF at(plot.left(), axes.yOf(axes.y.ticks[i]));
        const QPointF far(plot.right(), at.y());
        layout.lines.push_back(
            {axes.depth > 0 ? QPolygonF{at, at + back, far + back} : QPolygonF{at, far}, ChartStroke::grid});
        layout.lines.push_back({{at - QPointF(tick, 0), at}, ChartStroke::axis});
        if (isWritten(axes.y, i, nth))
            writer.add(writer.line(chartNumber(axes.y.ticks[i]),
                                   at - QPointF(tick + writer.scaled(labelGap), 0), 1, layout.size.width()));
    }
    for (const double minor : axes.y.minorTicks) {
        const QPointF at(plot.left(), axes.yOf(minor));
        layout.lines.push_back({{at - QPointF(tick / 2, 0), at}, ChartStroke::axis});
    }
    layout.lines.push_back({{plot.topLeft(), plot.bottomLeft()}, ChartStroke::axis});
}

void layOutBaseline(const Axes& axes, ChartLayout& layout)
{
    const double y = axes.yOf(std::clamp(0.0, axes.y.from, axes.y.to));
    layout.linesAbove.push_back({{{axes.plot.left(), y}, {axes.plot.right(), y}}, ChartStroke::axis});
}

// ---- names along the X axis ----

enum class NameWay { level, slanting, upright };

struct NameFit {
    NameWay way = NameWay::level;
    double longest = 0; // of a name's line
    double height = 0;  // that the names take below the axis
    int nth = 1;        // every how manieth is written
};

/// Level in up to three lines when all of them fit, else slanting, else upright; of names too many even for
/// that every second, third... is written.
NameFit fitNames(const std::vector<QString>& names, double slot, double mostHeight, const ChartWriter& writer)
{
    constexpr std::size_t mostLines = 3;
    const double line = writer.lineHeight();
    const double gap = writer.scaled(labelGap);
    std::size_t lines = 1;
    double widestLine = 0;
    for (const QString& name : names) {
        const std::vector<QString> wrapped = writer.wrapped(name, slot - 2 * gap);
        lines = std::max(lines, wrapped.size());
        widestLine = std::max(widestLine, writer.widest(wrapped));
    }
    if (lines <= mostLines && widestLine <= slot - 2 * gap)
        return {NameWay::level, slot - 2 * gap, double(lines) * line, 1};
    const double longestName = writer.widest(names);
    if (slot >= line * std::numbers::sqrt2 + gap) {
        const double longest = std::min(longestName, (mostHeight - line) * std::numbers::sqrt2);
        return {NameWay::slanting, longest, (longest + line) / std::numbers::sqrt2, 1};
    }
    const double longest = std::min(longestName, mostHeight);
    return {NameWay::upright, longest, longest, everyNth(line, slot)};
}

void layOutName(const QString& name, QPointF below, const NameFit& fit, ChartWriter& writer)
{
    const double line = writer.lineHeight();
    switch (fit.way) {
    case NameWay::level:
        for (const QString& part : writer.wrapped(name, fit.longest)) {
            writer.add(writer.line(part, below + QPointF(0, line / 2), 0.5, fit.longest));
            below.ry() += line;
        }
        return;
    case NameWay::slanting: { // it must not leave the chart on the left
        const double longest = std::min(fit.longest, below.x() * std::numbers::sqrt2 - line);
        writer.add(writer.line(name, below + QPointF(0, line / 2 / std::numbers::sqrt2), 1, longest,
                               ChartTextRole::label, -45));
        return;
    }
    case NameWay::upright:
        writer.add(writer.line(name, below, 1, fit.longest, ChartTextRole::label, -90));
    }
}

std::vector<QString> namesOf(const Chart& chart)
{
    std::vector<QString> names;
    for (int row = 1; row <= chart.rowCount(); ++row)
        names.push_back(chart.rowLabel(row).simplified());
    return names;
}

} // namespace

void layOutNamedAxes(const Chart& chart, QRectF room, Axes& axes, ChartLayout& layout, ChartWriter& writer)
{
    constexpr double mostOfNames = 0.36; // of the room's height
    room = layOutTitlesAndMargin(chart, room, axes, writer);
    room.adjust(0, axes.depth, -axes.depth, 0);
    axes.plot = room;
    const std::vector<QString> names = namesOf(chart);
    const double gap = writer.scaled(2 * labelGap); // keeps clear of a point on the axis
    const NameFit fit =
        fitNames(names, axes.slot(std::max(1, chart.rowCount())), room.height() * mostOfNames, writer);
    axes.plot.setBottom(std::round(room.bottom() - fit.height - gap));
    layOutYAxis(axes, layout, writer);
    layOutBaseline(axes, layout);
    for (std::size_t i = 0; i < names.size(); i += std::size_t(fit.nth)) {
        const double x = axes.plot.left() + (double(i) + 0.5) * axes.slot(chart.rowCount());
        layOutName(names[i], {x, axes.plot.bottom() + gap}, fit, writer);
    }
}

void layOutNumberAxes(const Chart& chart, QRectF room, Axes& axes, ChartLayout& layout, ChartWriter& writer)
{
    const double tick = writer.scaled(tickLength);
    const double gap = writer.scaled(2 * labelGap); // keeps clear of the Y axis' lowest label
    const double line = writer.lineHeight();
    const double widest = writer.widest(tickTexts(axes.x));
    axes.plot = layOutTitlesAndMargin(chart, room, axes, writer);
    axes.plot.adjust(0, 0, -widest / 2, -(line + tick + gap));
    layOutYAxis(axes, layout, writer);
    const int nth = everyNth(widest + gap, distanceOfTicks(axes.x, axes.plot.width()));
    for (std::size_t i = 0; i < axes.x.ticks.size(); ++i) {
        const QPointF at(axes.xOf(axes.x.ticks[i]), axes.plot.bottom());
        if (axes.x.ticks[i] > axes.x.from)
            layout.lines.push_back({{at, {at.x(), axes.plot.top()}}, ChartStroke::grid});
        layout.lines.push_back({{at, at + QPointF(0, tick)}, ChartStroke::axis});
        if (isWritten(axes.x, i, nth))
            writer.add(writer.line(chartNumber(axes.x.ticks[i]), at + QPointF(0, tick + gap + line / 2), 0.5,
                                   widest));
    }
    layout.lines.push_back({{axes.plot.bottomLeft(), axes.plot.bottomRight()}, ChartStroke::axis});
}
