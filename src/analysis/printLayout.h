// Where a picture of the board, a card or a chart lies on its page.
#pragma once

#include "platform/page.h"

/// In the units of the page.
struct PrintLayout {
    double printMargin = 0;
    double printWidth = 0; // of the drawing area, in the shape of the board
    double printHeight = 0;
};

/// The size of the board below the menu band, in pixels. Raises 380 for a board without any room.
QSizeF boardSize();

/// `share` makes the drawing area smaller; it is never wider than the page less its margins.
PrintLayout printLayout(const Page& page, double share);
