// The keyboard stays with the dialog in front.
#pragma once

/// From now on a modal dialog takes the keyboard back when the desktop gives it to a window behind the
/// dialog, as some Wayland desktops do at a click there. Call it once, after the QApplication was made.
void keepFocusInDialogs();
