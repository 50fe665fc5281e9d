#include "analysis/graph.h"

#include "analysis/groupTable.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/values.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Kind {
    ChartType type;
    bool legend;
    bool axisTitles;
    bool line; // of a scattergram
};

constexpr std::array<Kind, 6> kinds{{
    {ChartType::bars, true, true, false},
    {ChartType::bars3d, false, false, false},
    {ChartType::line, false, false, false},
    {ChartType::pie, true, false, false},
    {ChartType::scatter, false, false, false},
    {ChartType::scatter, false, false, true},
}};

/// Whole numbers up to 15 are marked one by one, or as near to that as equal parts come.
void setScaleByLargest(Chart& chart)
{
    constexpr double mostMarked = 15;
    const double largest = session.graph.graphMaxValue;
    ValueScale scale;
    if (std::abs(largest) <= mostMarked) {
        double lowest = 0;
        for (int row = 1; row <= session.groupTable.numTallies; ++row)
            lowest = std::min(lowest, double(session.groupTable.groupTally[row]));
        scale = {false, std::floor(lowest), largest, toInteger(largest), 1};
    }
    chart.setScale(1, scale);
}

void fillBars(Chart& chart, const Kind& kind)
{
    const GroupTable& table = session.groupTable;
    chart.setCounts(table.numTallies, 1);
    if (kind.axisTitles) {
        chart.axis[0].title = session.graph.graphXTitle;
        chart.axis[1].title = session.graph.graphYTitle;
    }
    chart.titleText = session.graph.graphTitle;
    chart.setColumnLabel(1, session.graph.graphYTitle);
    setScaleByLargest(chart);
    for (int row = 1; row <= table.numTallies; ++row) {
        chart.setRowLabel(row, table.groupLabel[row]);
        chart.setData(row, 1, singleText(table.groupTally[row]));
    }
    chart.legendVisible = kind.legend;
}

void fillPie(Chart& chart, const Kind& kind)
{
    const GroupTable& table = session.groupTable;
    chart.setCounts(1, table.numTallies);
    chart.setRowLabel(1, QString());
    chart.titleText = session.graph.graphTitle;
    setScaleByLargest(chart);
    bool hasSlice = false;
    for (int column = 1; column <= table.numTallies; ++column) {
        chart.setColumnLabel(column, table.groupLabel[column]);
        chart.setData(1, column, singleText(table.groupTally[column]));
        hasSlice = hasSlice || table.groupTally[column] > 0;
    }
    if (!hasSlice)
        throw RuntimeError(invalidProperty);
    chart.legendVisible = kind.legend;
}

/// One point for each row of the table, taken from the cards: what is counted in groups shows the first cards
/// only.
void fillScattergram(Chart& chart, const Kind& kind)
{
    chart.setCounts(session.groupTable.numTallies, 2);
    chart.series = {true, kind.line};
    findScatterMax();
    if (!kind.line) {
        for (const int axis : {0, 1})
            chart.setScale(axis, {false, 0, session.graph.graphMaxValue, 10, 1});
    }
    for (int card = 1; card <= chart.rowCount(); ++card) {
        for (const int axis : {1, 2}) {
            const QString& value = session.cardValue[card][session.graph.graphAxisField[axis]];
            chart.setData(card, axis, numberText(leadingNumber(value)));
        }
    }
}

/// The chart as the answers want it, on the ground of what an earlier one left.
Chart chartFromAnswers()
{
    const Kind& kind = kinds.at(std::size_t(session.graph.graphKind));
    Chart chart = session.graph.chart;
    chart.chartType = kind.type;
    if (kind.type == ChartType::scatter)
        fillScattergram(chart, kind);
    else if (kind.type == ChartType::pie)
        fillPie(chart, kind);
    else
        fillBars(chart, kind);
    return chart;
}

} // namespace

void drawGraph()
{
    try {
        session.graph.chart = chartFromAnswers();
        session.window.MSChart.visible = true;
    } catch (const std::exception&) {
        session.window.cmdCopyGraph.visible = session.window.MSChart.visible;
        desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s,
                                  u"You need to have values in the fields to make graphs."_s);
    }
    mainView.showControls();
    mainView.redrawBoard();
}

void copyGraph()
{
    ignoringErrors({
        [] { desktop.clipboard.clear(); },
        [] { desktop.clipboard.copyPicture(mainView.chartPicture()); },
    });
    desktop.sound.beep();
    desktop.boxes.showMessage(
        MessageIcon::information, u"Notice"_s,
        u"The Graph has been copied into clipboard. Please Use Windows Paint (or similar "
        "paint tool) to paste the graph."_s);
}
