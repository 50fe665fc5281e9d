// How the program ends.
#pragma once

#include <functional>

/// Leaves the open database as the main window's closing does, unloads every form and ends the program.
/// Nothing is asked and nothing is saved: whatever changed was written when it changed.
void shutDown();

/// Runs a routine without which the program can't go on: an error that it doesn't handle is shown and ends
/// the program. True when no error came.
bool endingOnError(const std::function<void()>& routine);
