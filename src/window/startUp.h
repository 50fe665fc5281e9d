// Starting the program.
#pragma once

#include <QString>

/// The teacher's setting of the program's size. Needs the QApplication.
QString chosenScale();

/// Runs the program to its end and returns its exit code. Needs the QApplication.
int runTallymoor();

/// Connects the hooks, then shows the splash, the main window and the welcome dialog.
void startUp();
