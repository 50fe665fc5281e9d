#include "core/windowLayout.h"

#include "core/session.h"
#include "support/freshStart.h"

TEST(WindowLayouts, FillTheWindowBelowTheBand)
{
    const WindowLayout place = windowLayout({1000, 700}, 1280);
    EXPECT_EQ(place.toolbarBlock, QRect(0, 0, 2080, menuGreyLine));
    EXPECT_EQ(place.tablePanel, QRect(0, 40, 1000, 660));
    EXPECT_EQ(place.MSChart, place.tablePanel);
    EXPECT_EQ(place.Grid.width(), 959);
    EXPECT_EQ(place.gridScroll.left(), 968);
    EXPECT_EQ(place.gridScroll.height(), place.Grid.height());
}

TEST(WindowLayouts, ASizeThatLeavesNoRoomIsAnError)
{
    EXPECT_NO_THROW(windowLayout({60, 80}, 1280));
    for (const QSize tooSmall : {QSize(1000, 39), QSize(40, 700)})
        EXPECT_THROW(windowLayout(tooSmall, 1280), RuntimeError) << tooSmall.width();
}
