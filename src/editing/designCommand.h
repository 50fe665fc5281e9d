// The command "Design Cards...".
#pragma once

/// Shows the design dialog in card mode, redraws the cards if their size was changed, and writes the
/// description after either answer.
void designCommand();
