// The captions and circles that the find and group tools leave on the board.
#pragma once

/// Removes them all and gives the board its own colour again.
void clearBoardLabels();
