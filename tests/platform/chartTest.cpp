#include "platform/chartScale.h"

#include "platform/errors.h"
#include "support/freshStart.h"

#include <limits>

using namespace Qt::StringLiterals;

TEST(Charts, KeepWhatIsInTheOldGridAndInTheNewOne)
{
    Chart chart;
    chart.setCounts(2, 1);
    chart.setRowLabel(2, u"cats"_s);
    chart.setColumnLabel(1, u"Number"_s);
    chart.setData(2, 1, u"2.5"_s);
    chart.setCounts(3, 2);
    EXPECT_EQ(chart.rowLabel(2), u"cats"_s);
    EXPECT_EQ(chart.columnLabel(1), u"Number"_s);
    EXPECT_EQ(chart.data(2, 1), 2.5);
    EXPECT_EQ(chart.data(3, 2), 0);
    EXPECT_THROW(chart.setData(4, 1, u"1"_s), RuntimeError);
    EXPECT_THROW(chart.setData(1, 0, u"1"_s), RuntimeError);
    EXPECT_THROW(chart.setData(1, 1, u"cats"_s), RuntimeError);
}

TEST(Charts, RefuseOnlyAScaleOfNoDivisions)
{
    Chart chart;
    EXPECT_THROW(chart.setScale(1, {false, 0, 0, 0, 1}), RuntimeError);
    EXPECT_TRUE(chart.axis[1].scale.automatic) << "a refused scale changes nothing";
    EXPECT_NO_THROW(chart.setScale(1, {false, 0, -3, -3, 1}));
    EXPECT_NO_THROW(chart.setScale(1, {true, 0, 0, 0, 1}));
}

TEST(Charts, WriteFiguresAsAPupilReadsThem)
{
    const std::pair<double, QString> cases[] = {
        {0, u"0"_s},           {-0.0, u"0"_s},       {float(0.1), u"0.1"_s},    {2.5, u"2.5"_s},
        {-12, u"-12"_s},       {1e7, u"10000000"_s}, {12345678, u"12345680"_s}, {1e15, u"1E+15"_s},
        {0.1 + 0.2, u"0.3"_s}, {1e-7, u"1E-07"_s},
    };
    for (const auto& [number, text] : cases)
        EXPECT_EQ(chartNumber(number), text);
}

TEST(Charts, MarkTheirScales)
{
    constexpr double huge = std::numeric_limits<float>::max();
    const struct {
        ValueScale wanted;
        double lowest, highest;
        bool fromZero;
        double from, to;
        std::size_t count;
        double part;
    } cases[] = {
        {{false, 0, 15, 15}, 0, 15, true, 0, 15, 16, 1},
        {{false, 0, 2.5, 2}, 0, 2.5, true, 0, 2.5, 3, 1.25}, // the number of divisions, not their size
        {{false, -3, 5, 5}, -3, 5, true, -3, 5, 9, 1},       // the same divisions below zero
        {{false, -3, 2.5, 2}, -3, 2.5, true, -3, 2.5, 5, 1.25},
        {{false, 0, 37, 10}, 0, 90, true, 0, 37, 11, 3.7},
        {{false, 0, -3, -3}, -8, -3, true, -8, 0, 9, 1}, // can't be drawn, so automatic
        {{false, 0, 0, 10}, 0, 0, false, -1, 1, 5, 0.5},
        {{false, -5e30, 3, 3}, -5e30, 3, true, -5e30, 1e30, 7, 1e30}, // no end of marks
        {{}, 0, 15.5, true, 0, 16, 9, 2},
        {{}, -20, -4, true, -20, 0, 5, 5},
        {{}, 0, 0, true, 0, 1, 6, 0.2},
        {{}, 1998, 2005, false, 1998, 2005, 8, 1},
        {{}, 5, 5, false, 4, 6, 5, 0.5},
        {{}, 0, huge, true, 0, 3.5e38, 8, 5e37},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.wanted.maximum << ' ' << c.lowest << ' ' << c.highest);
        const AxisScale scale = scaleFor(c.wanted, c.lowest, c.highest, c.fromZero);
        EXPECT_DOUBLE_EQ(scale.from, c.from);
        EXPECT_DOUBLE_EQ(scale.to, c.to);
        ASSERT_EQ(scale.ticks.size(), c.count);
        EXPECT_NEAR(scale.ticks[1] - scale.ticks[0], c.part, c.part * 1e-9);
        EXPECT_GE(scale.ticks.front(), scale.from);
        EXPECT_LE(scale.share(scale.ticks.back()), 1 + 1e-9);
    }
}
