// "Design Cards...": the shape of the open database.
#pragma once

/// Shows the design dialog in card mode, redraws the cards if their size was changed, and writes the
/// description, whatever the answer was.
void designCommand();
