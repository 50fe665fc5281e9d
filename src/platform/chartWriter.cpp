#include "platform/chartWriter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double lineShare = 1.25; // of the font's size

} // namespace

ChartWriter::ChartWriter(ChartLayout& layoutToFill, const QFont& labels)
    : layout(layoutToFill)
    , metricsOf{QFontMetricsF(chartFont(labels, ChartTextRole::title, layoutToFill.scale)),
                QFontMetricsF(chartFont(labels, ChartTextRole::axisTitle, layoutToFill.scale)),
                QFontMetricsF(chartFont(labels, ChartTextRole::label, layoutToFill.scale))}
    , labelSize(chartFont(labels, ChartTextRole::label, layoutToFill.scale).pixelSize())
{
}

double ChartWriter::lineHeight(ChartTextRole role) const { return labelSize * textSize(role) * lineShare; }

double ChartWriter::width(const QString& text, ChartTextRole role) const
{
    return metrics(role).horizontalAdvance(text);
}

double ChartWriter::widest(const std::vector<QString>& texts) const
{
    double most = 0;
    for (const QString& text : texts)
        most = std::max(most, width(text));
    return most;
}

std::vector<QString> ChartWriter::wrapped(const QString& text, double longest) const
{
    std::vector<QString> lines(1);
    for (const QString& word : text.simplified().split(u' ')) {
        const QString longer = lines.back().isEmpty() ? word : lines.back() + u' ' + word;
        if (lines.back().isEmpty() || width(longer) <= longest)
            lines.back() = longer;
        else
            lines.push_back(word);
    }
    return lines;
}

ChartText ChartWriter::line(const QString& text, QPointF anchor, double align, double longest,
                            ChartTextRole role, double angle, Qt::TextElideMode cut) const
{
    const QString shown = metrics(role).elidedText(text.simplified(), cut, std::max(longest, 0.0));
    return {shown, role, anchor, align, angle, width(shown, role), lineHeight(role), false};
}

void ChartWriter::add(const ChartText& text)
{
    if (!text.text.isEmpty())
        layout.texts.push_back(text);
}

QRectF layOutHead(const Chart& chart, ChartLayout& layout, ChartWriter& writer)
{
    const double margin = writer.scaled(12);
    QRectF room = QRectF(QPointF(), layout.size).adjusted(margin, margin, -margin, -margin);
    const double middle = room.center().x();
    if (!chart.titleText.simplified().isEmpty()) {
        const double height = writer.lineHeight(ChartTextRole::title);
        writer.add(writer.line(chart.titleText, {middle, room.top() + height / 2}, 0.5, room.width(),
                               ChartTextRole::title));
        room.setTop(room.top() + height + writer.scaled(6));
    }
    const QString entry = chart.columnCount() > 0 ? chart.columnLabel(1).simplified() : QString();
    if (!chart.legendVisible || chart.chartType == ChartType::pie || entry.isEmpty())
        return room;
    const double height = writer.lineHeight();
    const double swatch = writer.scaled(16);
    const double gap = writer.scaled(8);
    ChartText text = writer.line(entry, {}, 0, room.width() - swatch - gap);
    const double left = middle - (swatch + gap + text.length) / 2;
    const double y = room.top() + height / 2;
    text.anchor = {left + swatch + gap, y};
    writer.add(text);
    QPainterPath square;
    square.addRect(left, y - swatch / 2, swatch, swatch);
    layout.shapes.push_back({square});
    room.setTop(room.top() + height + writer.scaled(6));
    return room;
}
