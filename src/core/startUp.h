// From the program's start to the board and the welcome dialog, and on to its end.
#pragma once

/// Runs the program until it has ended; the result is the program's own. Needs the QApplication.
int runTallymoor();

/// The steps of the start, in their order: the splash, the main window's load, the start values, the main
/// window, the welcome dialog.
void startUp();
