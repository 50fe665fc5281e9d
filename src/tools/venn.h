// The Venn display: two circles on the board, and each card flies to the region that it belongs to.
#pragma once

/// Sizes and places the frame and the circles for the present board.
void layoutVenn();

/// The whole display for conditions 0 (left circle) and 1 (right circle). `dialogAway` is called when the
/// cards have been counted, before the circles are shown.
void runVenn(void (*dialogAway)());
