// Whether the user has asked the desktop for less motion.
#pragma once

/// Asks the desktop's settings over the session bus, for a second at most. False where there is no answer.
bool desktopWantsLessMotion();
