// The child processes for measuring the start.
#pragma once

/// Shows a bare window, or runs the program up to its welcome dialog without waiting for the splash, and ends
/// this process once it is painted. `what` is "bare", "word" for a window with one word, or "welcome".
[[noreturn]] void startAndEnd(int argc, char** argv, const char* what);
