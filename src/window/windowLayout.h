// The layout of the main window, in pixels of its inner area.
#pragma once

#include <QRect>

struct WindowLayout {
    QRect toolbarBlock; // the menu band, wider than the screen
    QPoint mapPic;
    QRect tablePanel;
    QRect MSChart;
    QRect Grid; // in the table's panel
    QRect gridScroll;
};

/// The layout for a window of that inner size. Raises 380 when a part would get a negative size.
WindowLayout windowLayout(QSize inner, int screenWidth);
