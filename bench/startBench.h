// The child processes that the start is measured with.
#pragma once

/// Shows a bare window or the program up to its welcome dialog, without the splash's time, and ends this
/// process once it is painted. `what` is "bare", "word" for a window with one word, or "welcome".
[[noreturn]] void startAndEnd(int argc, char** argv, const char* what);
