// How the program ends.
#pragma once

#include <functional>

/// Ends the program, as closing the main window does: leaves the open database and unloads every form. It
/// neither asks nor saves, since every change was written at once.
void shutDown();

/// Runs a routine whose failure ends the program: an uncaught error is shown first. True without an error.
bool endingOnError(const std::function<void()>& routine);
