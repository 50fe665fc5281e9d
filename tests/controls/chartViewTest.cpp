#include "controls/chartView.h"

#include "controls/balloon.h"
#include "support/freshStart.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Chart threeBars()
{
    Chart chart;
    chart.titleText = u"Pets"_s;
    chart.setCounts(3, 1);
    const QString names[] = {u"cats"_s, u"dogs"_s, u"<b>"_s};
    for (int row = 1; row <= 3; ++row) {
        chart.setRowLabel(row, names[row - 1]);
        chart.setData(row, 1, QString::number(row * 2));
    }
    return chart;
}

class ChartViews : public Fresh {
protected:
    ChartViews()
    {
        view.resize(600, 400);
        view.setChart(threeBars());
        view.show();
        view.activateWindow();
        view.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    QPoint middleOf(int mark) const
    {
        return view.layout().marks[std::size_t(mark)].place().center().toPoint();
    }

    ChartView view;
};

} // namespace

TEST_F(ChartViews, TellAValueToMouseAndFinger)
{
    QTest::mouseMove(&view, middleOf(1));
    EXPECT_EQ(hintInView(), plainHint(u"dogs: 4"_s));
    QTest::mouseMove(&view, {2, 2});
    EXPECT_TRUE(QTest::qWaitFor([] { return hintInView().isEmpty(); }));
    int presses = 0;
    view.pressed = [&] { ++presses; };
    QTest::mouseClick(&view, Qt::LeftButton, {}, middleOf(2));
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(hintInView(), plainHint(u"<b>: 6"_s));
    EXPECT_EQ(view.chosenMark(), 2);
}

TEST_F(ChartViews, AreWalkedThroughWithTheKeys)
{
    const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Left, 0},  {Qt::Key_Right, 1}, {Qt::Key_Down, 2},
                                             {Qt::Key_Right, 2}, {Qt::Key_Up, 1},    {Qt::Key_Home, 0},
                                             {Qt::Key_End, 2}};
    for (const auto& [key, mark] : steps) {
        QTest::keyClick(&view, key);
        EXPECT_EQ(view.chosenMark(), mark) << key;
    }
    EXPECT_EQ(hintInView(), plainHint(u"<b>: 6"_s));
    Chart shorter = threeBars();
    shorter.setCounts(1, 1);
    view.setChart(shorter);
    EXPECT_EQ(view.chosenMark(), -1);
}
