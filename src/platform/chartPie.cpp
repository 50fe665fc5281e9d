// The pie: a slice for each column, named beside it where there is room, and in the legend.
#include "platform/chartWriter.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr double gapOfName = 8; // between the rim and a slice's name

struct Slice {
    int column = 0;
    QString name;
    double value = 0; // never below 0
    double begin = 0; // shares of the whole, from the top, clockwise
    double share = 0;

    double middle() const { return begin + share / 2; }
};

std::vector<Slice> slicesOf(const Chart& chart)
{
    std::vector<Slice> slices;
    double whole = 0;
    for (int column = 1; column <= chart.columnCount() && chart.rowCount() > 0; ++column) {
        const double value = std::max(0.0, chart.data(1, column));
        slices.push_back({column, chart.columnLabel(column).simplified(), value, 0, 0});
        whole += value;
    }
    double begin = 0;
    for (Slice& slice : slices) {
        slice.begin = begin;
        slice.share = whole > 0 ? slice.value / whole : 0;
        begin += slice.share;
    }
    return slices;
}

/// The point at that share of the round, seen from the centre.
QPointF direction(double share)
{
    const double angle = share * 2 * std::numbers::pi;
    return {std::sin(angle), -std::cos(angle)};
}

QPainterPath pathOf(const Slice& slice, const QRectF& circle)
{
    QPainterPath path;
    if (slice.share >= 1) {
        path.addEllipse(circle);
    } else if (slice.share > 0) {
        path.moveTo(circle.center());
        path.arcTo(circle, 90 - slice.begin * 360, -slice.share * 360);
        path.closeSubpath();
    }
    return path;
}

int colourOf(const Slice& slice) { return (slice.column - 1) % chartColours; }
int patternOf(const Slice& slice) { return (slice.column - 1) % chartPatterns; }

std::vector<QString> namesOf(const std::vector<Slice>& slices)
{
    std::vector<QString> names;
    for (const Slice& slice : slices)
        names.push_back(slice.name);
    return names;
}

// ---- the legend ----

/// Names are cut at their end, unless different ones would then read the same: "Monster number 1, 2, 3...".
Qt::TextElideMode cutOf(const std::vector<QString>& names, double longest, const ChartWriter& writer)
{
    std::set<QString> cut;
    for (const QString& name : names)
        cut.insert(writer.line(name, {}, 0, longest).text);
    const std::set<QString> whole(names.begin(), names.end());
    return cut.size() < whole.size() ? Qt::ElideMiddle : Qt::ElideRight;
}

/// Fills columns from the right edge leftwards and returns the room beside them. Several columns take that
/// share of the room at most.
QRectF layOutLegend(const std::vector<Slice>& slices, QRectF room, double mostOfRoom, ChartLayout& layout,
                    ChartWriter& writer)
{
    const double height = writer.lineHeight() * 1.05;
    const double swatch = writer.scaled(18);
    const double gap = writer.scaled(8);
    const std::vector<QString> names = namesOf(slices);
    const int perColumn = std::max(1, int(room.height() / height));
    const int columns = (int(slices.size()) + perColumn - 1) / perColumn;
    const int rows = (int(slices.size()) + columns - 1) / std::max(1, columns);
    const double most = room.width() * (columns > 1 ? mostOfRoom : 0.34) / std::max(1, columns);
    const double width = std::min(most, writer.widest(names) + swatch + 3 * gap);
    const double left = room.right() - columns * width;
    const double longest = width - swatch - 2 * gap;
    const Qt::TextElideMode cut = cutOf(names, longest, writer);
    const double top = room.center().y() - rows * height / 2;
    for (std::size_t i = 0; i < slices.size(); ++i) {
        const int column = int(i) / rows;
        const double x = left + column * width;
        const double y = top + (int(i) % rows + 0.5) * height;
        QPainterPath square;
        square.addRect(x, std::round(y - swatch / 2), swatch, swatch);
        layout.shapes.push_back({square, colourOf(slices[i]), patternOf(slices[i]), 0});
        writer.add(writer.line(names[i], {x + swatch + gap, y}, 0, longest, ChartTextRole::label, 0, cut));
    }
    room.setRight(left - 2 * gap);
    return room;
}

// ---- what stands at a slice ----

bool isFree(const ChartText& text, const QRectF& room, const std::vector<ChartText>& taken)
{
    const QRectF area = text.area().boundingRect();
    return room.contains(area) && std::none_of(taken.begin(), taken.end(), [&](const ChartText& other) {
               return other.area().boundingRect().intersects(area);
           });
}

/// The name beside the slice; the larger slices choose first, and a name without room is left to the legend.
void addNames(std::vector<Slice> slices, const QRectF& circle, const QRectF& room, double longest,
              ChartWriter& writer)
{
    std::stable_sort(slices.begin(), slices.end(),
                     [](const Slice& a, const Slice& b) { return a.share > b.share; });
    std::vector<ChartText> placed;
    const double distance = circle.width() / 2 + writer.scaled(gapOfName);
    for (const Slice& slice : slices) {
        const QPointF to = direction(slice.middle());
        const double align = std::abs(to.x()) < 0.2 ? 0.5 : to.x() > 0 ? 0 : 1;
        const QPointF anchor = circle.center() + to * distance + QPointF(0, to.y() * writer.lineHeight() / 2);
        const ChartText name = writer.line(slice.name, anchor, align, longest);
        if (slice.share == 0 || name.text.isEmpty() || !isFree(name, room, placed))
            continue;
        writer.add(name);
        placed.push_back(name);
    }
}

/// The number stands in the slice where it fits.
void addNumber(const Slice& slice, const QPainterPath& path, const QRectF& circle, ChartWriter& writer)
{
    const QPointF anchor = slice.share >= 1
                               ? circle.center()
                               : circle.center() + direction(slice.middle()) * circle.width() / 2 * 0.68;
    ChartText number = writer.line(chartNumber(slice.value), anchor, 0.5, circle.width());
    const double plate = writer.scaled(4);
    number.onPaper = true;
    constexpr double leastShare = 0.03; // narrower slices have room here and there only
    if (slice.share >= leastShare &&
        path.contains(number.area().boundingRect().adjusted(-plate, -plate, plate, plate)))
        writer.add(number);
}

QString wordsFor(const Slice& slice)
{
    const QString number = chartNumber(slice.value);
    const QString percent = u" ("_s + QString::number(qRound(slice.share * 100)) + u" %)"_s;
    return (slice.name.isEmpty() ? number : slice.name + u": "_s + number) + percent;
}

} // namespace

void layOutPie(const Chart& chart, QRectF room, ChartLayout& layout, ChartWriter& writer)
{
    const std::vector<Slice> slices = slicesOf(chart);
    const bool legend = chart.legendVisible && !slices.empty();
    const bool crowded = slices.size() > 12;
    const double widest = writer.widest(namesOf(slices));
    // Where many names don't fit beside the slices, the legend has them alone, and room for more of each.
    const bool onlyInLegend = legend && crowded && widest > room.width() * 0.15;
    if (legend)
        room = layOutLegend(slices, room, onlyInLegend ? 0.62 : 0.5, layout, writer);
    const double beside = writer.scaled(gapOfName);
    const double longest = onlyInLegend ? 0 : std::min(widest, room.width() * (crowded ? 0.15 : 0.24));
    const double above = onlyInLegend ? 0 : writer.lineHeight();
    const double diameter =
        std::max(0.0, std::min(room.width() - 2 * (longest + beside), room.height() - 2 * (above + beside)));
    const QRectF circle(room.center() - QPointF(diameter, diameter) / 2, QSizeF(diameter, diameter));
    layout.plot = circle;
    for (const Slice& slice : slices) {
        const QPainterPath path = pathOf(slice, circle);
        layout.marks.push_back({wordsFor(slice), path, path});
        if (slice.share == 0)
            continue;
        layout.shapes.push_back({path, colourOf(slice), patternOf(slice), 0});
        addNumber(slice, path, circle, writer);
    }
    if (!onlyInLegend)
        addNames(slices, circle, room, longest, writer);
}
