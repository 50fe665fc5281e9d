#include "analysis/graph.h"

#include "analysis/groupTable.h"
#include "board/mode.h"
#include "core/mainView.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "support/cards.h"
#include "support/freshStart.h"

using namespace Qt::StringLiterals;

namespace {

const QString noValues = u"Error|You need to have values in the fields to make graphs."_s;

/// As the wizard answers, all data shown.
void graphOf(int kind, const QStringList& numbers)
{
    cards(numbers, u"123"_s);
    session.graph.graphKind = kind;
    session.graph.showAllData = true;
    session.window.cmdCopyGraph.visible = true;
    listValues(1);
    findGraphMax();
    sortGroups(1);
    drawGraph();
}

class Graphs : public Fresh {
protected:
    Chart& chart = session.graph.chart;
};

} // namespace

TEST_F(Graphs, ChooseTheScaleByTheLargestNumber)
{
    const ValueScale automatic;
    const struct {
        QStringList numbers;
        ValueScale scale;
    } cases[] = {
        {{u"15"_s, u"2"_s}, {false, 0, 15, 15}},
        {{u"15.5"_s}, automatic},
        {{u"-20"_s}, automatic},
        {{u"2.5"_s}, {false, 0, 2.5, 2}},
        {{u"-3"_s, u"-3.5"_s}, {false, -4, -3, -3}},
        {{u"6"_s, u"-2.5"_s}, {false, -3, 6, 6}},
    };
    for (const auto& [numbers, scale] : cases) {
        graphOf(0, numbers);
        EXPECT_TRUE(chart.axis[1].scale == scale) << numbers[0].toStdString();
    }
    EXPECT_EQ(recorded.messages, QStringList());
}

TEST_F(Graphs, RefuseWhatHasNoValuesAndKeepTheOldChart)
{
    const std::pair<int, QStringList> refused[] = {{0, {u"0"_s, u"0"_s}},   {1, {u"0.4"_s}},
                                                   {2, {u"none"_s}},        {3, {u"0"_s}},
                                                   {3, {u"-3"_s, u"-4"_s}}, {6, {u"1"_s}}};
    for (const auto& [kind, numbers] : refused) {
        graphOf(kind, numbers);
        EXPECT_FALSE(session.window.MSChart.visible);
        EXPECT_FALSE(session.window.cmdCopyGraph.visible);
    }
    EXPECT_EQ(recorded.messages, QStringList(std::size(refused), noValues));
    EXPECT_EQ(recorded.beeps, 0);

    graphOf(0, {u"3"_s});
    const Chart drawn = chart;
    graphOf(0, {u"0"_s, u"0"_s});
    EXPECT_TRUE(chart == drawn);
    EXPECT_TRUE(session.window.MSChart.visible && session.window.cmdCopyGraph.visible);
    setMode(u"card"_s);
    EXPECT_FALSE(session.window.MSChart.visible || session.window.cmdCopyGraph.visible);
}

TEST_F(Graphs, LeaveTitlesLegendAndScaleToTheNextOne)
{
    session.graph.graphTitle = u"Pets"_s;
    session.graph.graphXTitle = u"Kind"_s;
    session.graph.graphYTitle = u"Legs"_s;
    graphOf(0, {u"4"_s, u"2"_s});
    EXPECT_EQ(chart.columnLabel(1), u"Legs"_s);
    EXPECT_TRUE(chart.legendVisible);

    session.graph.graphTitle = u"Birds"_s;
    session.graph.graphXTitle = u"Colour"_s;
    session.graph.graphYTitle = u"Wings"_s;
    graphOf(2, {u"2"_s});
    EXPECT_EQ(chart.titleText, u"Birds"_s);
    EXPECT_EQ(chart.axis[0].title + chart.axis[1].title, u"KindLegs"_s) << "only a bar chart names its axes";
    EXPECT_FALSE(chart.legendVisible);

    graphOf(3, {u"7"_s, u"20"_s});
    EXPECT_EQ(chart.columnLabel(1) + chart.columnLabel(2), u"207"_s) << "sorted by label";
    EXPECT_EQ(chart.rowCount(), 1);

    session.graph.graphTitle = u"Ignored"_s;
    session.graph.graphAxisField[1] = session.graph.graphAxisField[2] = 1;
    graphOf(4, {u"7"_s, u"20"_s});
    EXPECT_EQ(chart.titleText, u"Birds"_s);
    EXPECT_TRUE(chart.legendVisible) << "as the pie left it";
    EXPECT_FALSE(chart.series.showLine);
    const ValueScale fixed{false, 0, 20, 10, 1};
    EXPECT_TRUE(chart.axis[0].scale == fixed && chart.axis[1].scale == fixed);

    graphOf(5, {u"700"_s});
    EXPECT_TRUE(chart.series.showLine);
    EXPECT_TRUE(chart.axis[0].scale == fixed) << "with line, the scale stays as it is";
}

TEST_F(Graphs, TakePointsFromTheCardsAndBarsFromTheTable)
{
    cards({u"cat"_s, u"cat"_s, u"dog"_s});
    session.cardValue[1][2] = u"0.1"_s;
    session.cardValue[2][2] = u"123456789.5"_s;
    session.graph.graphAxisField[1] = 2;
    session.graph.graphAxisField[2] = 2;
    session.graph.graphKind = 4;
    countGroups(1);
    drawGraph();
    ASSERT_EQ(chart.rowCount(), 2) << "counted in groups, only the first cards have a point";
    EXPECT_EQ(chart.data(1, 1), 0.1);
    EXPECT_EQ(chart.data(2, 2), 123456789.5);

    session.graph.graphKind = 0;
    listValues(2);
    findGraphMax();
    drawGraph();
    EXPECT_EQ(chart.data(1, 1), 0.1) << "single precision shows seven digits only";
    EXPECT_EQ(chart.data(2, 1), 123456800);
    EXPECT_EQ(chart.rowLabel(3), u"dog"_s);
}
