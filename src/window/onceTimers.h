// The main window's one-shot timers. The teacher's options start some of them when they have written the
// settings: each then reads its option again, when their screen has gone.
#pragma once

#include <span>

struct OnceTimer {
    const char* name;
    int interval; // ms
    void (*call)();
};

std::span<const OnceTimer> onceTimers();
