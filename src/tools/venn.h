// The Venn display: two circles on the board; each card flies to its region.
#pragma once

/// The whole display for conditions 0 (left circle) and 1 (right circle). `dialogAway` is called after the
/// cards were counted and before the circles are shown.
void runVenn(void (*dialogAway)());
