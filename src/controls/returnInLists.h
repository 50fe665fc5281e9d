// Return in an open list picks its line, and does nothing else.
#pragma once

/// From now on, for all windows of the program: where the key that closes a list would go on to the dialog
/// behind it, as it does on Wayland, it ends there.
void keepReturnInLists();
