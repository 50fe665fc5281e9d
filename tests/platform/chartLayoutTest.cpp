#include "platform/chartLayout.h"

#include "support/freshStart.h"

#include <QFontInfo>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QFont labels()
{
    QFont font(u"Andika"_s);
    font.setPixelSize(17);
    return font;
}

struct Kind {
    ChartType type;
    bool legend;
};
constexpr Kind kinds[] = {{ChartType::bars, true},
                          {ChartType::bars3d, false},
                          {ChartType::line, false},
                          {ChartType::pie, true},
                          {ChartType::scatter, true}};

Chart chartOf(ChartType type, const std::vector<double>& numbers, const QString& name)
{
    const int count = int(numbers.size());
    const bool pie = type == ChartType::pie;
    Chart chart;
    chart.chartType = type;
    chart.titleText = u"A title"_s;
    chart.axis[0].title = u"Across"_s;
    chart.axis[1].title = u"Up"_s;
    chart.setCounts(pie ? 1 : count, pie ? count : type == ChartType::scatter ? 2 : 1);
    for (int i = 1; i <= count; ++i) {
        const QString label = name.isEmpty() ? name : name.arg(i);
        if (pie)
            chart.setColumnLabel(i, label);
        else
            chart.setRowLabel(i, label);
        chart.setData(pie ? 1 : i, pie ? i : 1, QString::number(numbers[std::size_t(i - 1)]));
        if (type == ChartType::scatter)
            chart.setData(i, 2, QString::number(i * i));
    }
    return chart;
}

std::vector<double> numbersUpTo(int count, bool negative)
{
    std::vector<double> numbers;
    for (int i = 1; i <= count; ++i)
        numbers.push_back(i * 7919 % 13 - (negative ? 5 : 0));
    return numbers;
}

/// A hair's breadth smaller, since neighbours may touch.
QPolygonF shrunk(const ChartText& text)
{
    ChartText smaller = text;
    smaller.length -= 0.5;
    smaller.height -= 0.5;
    smaller.anchor += QPointF(text.angle == 0 ? 0.25 - text.align * 0.5 : 0, 0);
    return smaller.area();
}

void expectLegible(const ChartLayout& layout)
{
    const QRectF room = QRectF(QPointF(), layout.size).adjusted(-0.5, -0.5, 0.5, 0.5);
    for (const ChartText& text : layout.texts) {
        EXPECT_TRUE(room.contains(text.area().boundingRect())) << text.text.toStdString() << " falls off";
        for (const ChartText& other : layout.texts)
            EXPECT_TRUE(&text == &other || !shrunk(text).intersects(shrunk(other)))
                << text.text.toStdString() << " overlaps " << other.text.toStdString();
    }
}

} // namespace

TEST(ChartLayouts, LetNoTextOverlapAnotherOrFallOff)
{
    ASSERT_EQ(QFontInfo(labels()).family(), u"Andika"_s);
    const QString names[] = {u"%1"_s, u"red %1"_s, u"Giant African land snail %1"_s,
                             u"Tyrannosaurus%1RexOfTheNorthAndSouth"_s, u""_s};
    for (const Kind& kind : kinds) {
        for (const int count : {1, 2, 5, 12, 40}) {
            for (const bool negative : {false, true}) {
                for (const QString& name : names) {
                    for (const QSizeF size : {QSizeF(1024, 560), QSizeF(960, 520), QSizeF(700, 360)}) {
                        Chart chart = chartOf(kind.type, numbersUpTo(count, negative), name);
                        chart.legendVisible = kind.legend;
                        chart.setScale(1, {count % 2 == 0, negative ? -5.0 : 0, 12, 12, 1});
                        SCOPED_TRACE(testing::Message() << int(kind.type) << ' ' << count << ' ' << negative
                                                        << ' ' << name.toStdString() << ' ' << size.width());
                        const ChartLayout layout = layOutChart(chart, size, labels());
                        expectLegible(layout);
                        EXPECT_EQ(layout.marks.size(), std::size_t(count));
                        if (testing::Test::HasFailure())
                            return;
                    }
                }
            }
        }
    }
}

TEST(ChartLayouts, WriteEveryNameWhole)
{
    for (const auto& [count, name] : {std::pair(5, u"Giant African land snail %1"_s), {40, u"red %1"_s}}) {
        for (const Kind& kind : kinds) {
            Chart chart = chartOf(kind.type, numbersUpTo(count, false), name);
            chart.legendVisible = kind.legend;
            QStringList written;
            for (const ChartText& text : layOutChart(chart, {1024, 560}, labels()).texts)
                written << text.text;
            for (int i = 1; i <= count && kind.type != ChartType::scatter; ++i) {
                const QString last = count == 5 && kind.type != ChartType::pie ? u"%1"_s : name;
                EXPECT_NE(written.filter(last.arg(i)), QStringList()) << int(kind.type) << ' ' << i;
            }
        }
    }
}

TEST(ChartLayouts, GiveBarsTheHeightsOfTheirNumbersFromZero)
{
    Chart chart = chartOf(ChartType::bars, {4, 0, -2, 8}, u"name %1"_s);
    for (const ChartType type : {ChartType::bars, ChartType::bars3d}) {
        chart.chartType = type;
        const ChartLayout layout = layOutChart(chart, {1024, 560}, labels());
        const auto& bars = layout.marks;
        EXPECT_NEAR(bars[3].place().height(), 2 * bars[0].place().height(), 1e-6);
        EXPECT_NEAR(bars[0].place().height(), 2 * bars[2].place().height(), 1e-6);
        EXPECT_EQ(bars[1].place().height(), 0);
        EXPECT_NEAR(bars[2].place().top(), bars[0].place().bottom(), 1e-6) << "one hangs, one stands";
        EXPECT_EQ(bars[2].words, u"name 3: -2"_s);
        EXPECT_EQ(layout.markAt({bars[1].place().center().x(), layout.plot.top() + 5}), 1)
            << "also a flat bar is found";
        EXPECT_EQ(layout.markAt({2, 2}), -1);
    }
}

TEST(ChartLayouts, HideNoFrontOfASolidBarBehindAnother)
{
    for (const int count : {1, 5, 40}) {
        const auto layout =
            layOutChart(chartOf(ChartType::bars3d, numbersUpTo(count, true), u"%1"_s), {700, 360}, labels());
        for (const ChartMark& bar : layout.marks) {
            for (const ChartShape& shape : layout.shapes) {
                const QRectF seen = shape.path.boundingRect() & bar.place();
                EXPECT_TRUE(shape.shade == 0 || seen.width() * seen.height() < 1e-6)
                    << bar.words.toStdString();
            }
        }
    }
}

TEST(ChartLayouts, TurnSlicesByTheirShareAndSkipWhatIsNotAboveZero)
{
    Chart chart = chartOf(ChartType::pie, {1, -5, 2, 0, 1}, u"name %1"_s);
    chart.legendVisible = true;
    const ChartLayout layout = layOutChart(chart, {1024, 560}, labels());
    const QPointF centre = layout.plot.center();
    const double reach = layout.plot.width() / 2 * 0.9;
    const std::pair<double, int> expected[] = {{0.01, 0}, {0.24, 0}, {0.26, 2},
                                               {0.74, 2}, {0.76, 4}, {0.99, 4}};
    for (const auto& [share, mark] : expected) {
        const double angle = share * 2 * M_PI;
        EXPECT_EQ(layout.markAt(centre + QPointF(std::sin(angle), -std::cos(angle)) * reach), mark) << share;
    }
    EXPECT_EQ(layout.marks[2].words, u"name 3: 2 (50 %)"_s);
    EXPECT_EQ(layout.marks[1].words, u"name 2: 0 (0 %)"_s);
    EXPECT_EQ(std::ranges::count_if(layout.shapes, [](const ChartShape& s) { return s.colour == 2; }), 2)
        << "a slice and its entry in the legend look the same";
}

TEST(ChartLayouts, LeaveOutPointsBeyondAFixedScale)
{
    Chart chart = chartOf(ChartType::scatter, {1, 2, 300}, u"%1"_s);
    chart.series.showLine = false;
    for (const int axis : {0, 1})
        chart.setScale(axis, {false, 0, 10, 10, 1});
    const ChartLayout layout = layOutChart(chart, {1024, 560}, labels());
    EXPECT_EQ(layout.shapes.size(), 2U);
    EXPECT_TRUE(layout.marks[2].place().isEmpty());
    EXPECT_EQ(layout.marks[2].words, u"300, 9"_s);
    EXPECT_NEAR(layout.marks[0].place().center().x(), layout.plot.left() + layout.plot.width() / 10, 1e-6);
}

TEST(ChartLayouts, TellFortyLongNamesApartInThePiesLegendOfASmallWindow)
{
    for (const QString& name : {u"Giant African land snail %1"_s, u"No. %1 of the snails of Africa"_s}) {
        Chart chart = chartOf(ChartType::pie, numbersUpTo(40, false), name);
        chart.legendVisible = true;
        const ChartLayout layout = layOutChart(chart, {700, 400}, labels());
        expectLegible(layout);
        QStringList names;
        for (const ChartText& text : layout.texts) {
            if (text.role == ChartTextRole::label && !text.onPaper)
                names << text.text;
        }
        EXPECT_EQ(names.size(), 40);
        EXPECT_EQ(names.removeDuplicates(), 0) << names.join(u'|').toStdString();
        for (const QString& text : names)
            EXPECT_GE(text.size(), 10) << text.toStdString();
        EXPECT_GT(layout.plot.width(), 200) << "the pie";
    }
}
