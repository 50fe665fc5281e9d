// The captions and circles that the find and group tools leave on the board.
#pragma once

/// Takes them all away and gives the board its own colour again.
void clearBoardLabels();
