// The speed of flying cards, controlled by a small window.
#pragma once

/// Slider positions run from 1 (slow) to 9 (fast).
inline constexpr int usualSpeedPosition = 5;

/// Resets the speed; every animated tool starts with this.
void prepareAnimation();

/// Resets the speed and shows the speed window without waiting for it.
void beginRun();

/// Unloads the speed window, which also stops any flight.
void endRun();

/// The slider was moved to `position`; a position outside 1..9 doesn't change the speed.
void speedChosen(int position);

void pauseRun();
void resumeRun();

/// The speed window is being closed: every flight ends where the card is.
void stopRun();
