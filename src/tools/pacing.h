// The speed of flying cards, and the small window that sets it.
#pragma once

/// Slider positions run from 1 (slow) to 9 (fast).
inline constexpr int usualSpeedPosition = 5;

/// Resets the pace: every animated tool begins with this.
void prepareAnimation();

/// Prepares the pace and shows the speed window without waiting for it.
void beginRun();

/// Unloads the speed window, which also stops whatever still flies.
void endRun();

/// The slider was moved to `position`. One outside 1..9 selects nothing.
void speedChosen(int position);

void pauseRun();
void resumeRun();

/// The speed window is being closed, for any reason: every flight ends where it is.
void stopRun();
