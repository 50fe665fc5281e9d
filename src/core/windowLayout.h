// Where the parts of the main window lie. All in pixels of its inner area.
#pragma once

#include <QRect>

struct WindowLayout {
    QRect toolbarBlock; // the band of the menu, wider than any screen
    QPoint mapPic;
    QRect tablePanel;
    QRect MSChart;
    QRect Grid; // on the table's panel
    QRect gridScroll;
};

/// The layout for a window of that inner size. Raises 380 when a part would get a negative size.
WindowLayout windowLayout(QSize inner, int screenWidth);
