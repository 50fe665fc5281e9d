// Measures the texts of a chart and puts them into its layout. For the chart's own files.
#pragma once

#include "platform/chart.h"
#include "platform/chartParts.h"

#include <QFontMetricsF>

class ChartWriter {
public:
    ChartWriter(ChartLayout& layoutToFill, const QFont& labels);

    double scaled(double measure) const { return measure * layout.scale; }
    /// Room that one line takes, with the marks above capitals and the tails below small letters.
    double lineHeight(ChartTextRole role = ChartTextRole::label) const;
    double width(const QString& text, ChartTextRole role = ChartTextRole::label) const;
    double widest(const std::vector<QString>& texts) const;
    /// The words in lines that are no longer than `longest`, as far as single words aren't.
    std::vector<QString> wrapped(const QString& text, double longest) const;

    /// The text as it stands in the layout, cut with "…" where it is longer than `longest`. An empty one is
    /// left out of the layout by add().
    ChartText line(const QString& text, QPointF anchor, double align, double longest,
                   ChartTextRole role = ChartTextRole::label, double angle = 0,
                   Qt::TextElideMode cut = Qt::ElideRight) const;
    void add(const ChartText& text);

private:
    const QFontMetricsF& metrics(ChartTextRole role) const { return metricsOf[std::size_t(role)]; }

    ChartLayout& layout;
    std::array<QFontMetricsF, 3> metricsOf;
    double labelSize;
};

/// What the layout of every kind begins with: the title and, where it is asked for and has a text, the
/// legend's single entry. Returns the room that is left.
QRectF layOutHead(const Chart& chart, ChartLayout& layout, ChartWriter& writer);

/// The kinds, each in the room that the head leaves.
void layOutBars(const Chart& chart, QRectF room, ChartLayout& layout, ChartWriter& writer);
void layOutScatter(const Chart& chart, QRectF room, ChartLayout& layout, ChartWriter& writer);
void layOutPie(const Chart& chart, QRectF room, ChartLayout& layout, ChartWriter& writer);
