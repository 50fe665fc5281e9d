// The board on paper: cards, circles and captions as a pupil sees them, over the map.
#pragma once

#include "platform/page.h"

/// Draws the board in the middle of its page. Faces are drawn anew in the resolution of paper, from the
/// pictures that were loaded last: nothing is read from the disk.
void drawBoard(Page& page);
