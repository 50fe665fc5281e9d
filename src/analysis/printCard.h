// One card on paper: its picture, and its fields below.
#pragma once

#include "platform/page.h"

/// Draws the card. Raises what reading its picture raises, and 53 for a card that isn't there; a card that is
/// text only leaves the place of its picture empty.
void drawCard(Page& page, int card);
