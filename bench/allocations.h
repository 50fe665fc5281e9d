// Counts heap allocations of every kind.
#pragma once

/// Starts counting this thread's allocations, from 0.
void countAllocations();
/// Stops counting and returns the count.
long allocationsCounted();
