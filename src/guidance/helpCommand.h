// The menu's "Help".
#pragma once

/// Gives the board its usual background again and shows the help window.
void helpCommand();
