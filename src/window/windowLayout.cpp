#include "window/windowLayout.h"

#include "core/session.h"
#include "platform/errors.h"

namespace {

constexpr int beyondScreen = 800; // how far the band extends beyond the screen's width
constexpr int gapBelowBand = 2;
constexpr int gridMargin = 9;       // left of the grid, which then ends where its scroll bar begins
constexpr int gridOutside = 41;     // of the panel's width
constexpr int gridScrollPlace = 32; // from the panel's right edge
constexpr int gridScrollWidth = 32;
constexpr int gridHeadroom = 20; // above and below the grid together

QRect checked(const QRect& rect)
{
    if (rect.width() < 0 || rect.height() < 0)
        throw RuntimeError(invalidProperty);
    return rect;
}

} // namespace

WindowLayout windowLayout(QSize inner, int screenWidth)
{
    const int top = menuGreyLine + gapBelowBand;
    WindowLayout layout;
    layout.toolbarBlock = {0, 0, beyondScreen + screenWidth, menuGreyLine};
    layout.mapPic = {0, menuGreyLine};
    layout.tablePanel = checked({0, top, inner.width(), inner.height() - top});
    layout.MSChart = layout.tablePanel;
    layout.Grid = checked({gridMargin, gridHeadroom / 2, inner.width() - gridOutside,
                           layout.tablePanel.height() - gridHeadroom});
    layout.gridScroll = {inner.width() - gridScrollPlace, layout.Grid.top(), gridScrollWidth,
                         layout.Grid.height()};
    return layout;
}
