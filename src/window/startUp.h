// Starting the program.
#pragma once

/// The factor by which the program enlarges itself, 1 where the desktop already scales. Qt applies it when
/// the next QApplication is made, so the present one must then be replaced.
double scaleOfProgram();

/// Runs the program to its end and returns its exit code. Needs the QApplication.
int runTallymoor();

/// Connects the hooks, then shows the splash, the main window and the welcome dialog.
void startUp();
