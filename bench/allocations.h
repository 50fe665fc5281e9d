// Counts what is taken from the heap, by whatever way.
#pragma once

/// From here on this thread's allocations are counted, from 0.
void countAllocations();
/// Ends the counting and tells the count.
long allocationsCounted();
