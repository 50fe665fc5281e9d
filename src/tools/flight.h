// Moving a card visibly across the board; all tools use these routines.
#pragma once

enum class Axis { x, y };

/// Moves the card along one axis towards `target` (board pixels) in steps of half of
/// session.run.animationSpeed, drawing and yielding after each. True when it came within one step; false when
/// the run was stopped. At speed 0 it waits for events: the pupil has paused the run.
bool flyAlong(int card, Axis axis, double target);

/// The same; unless it was stopped, the card then is exactly at the target.
bool flyOnto(int card, Axis axis, double target);

/// Flies along x, then along y. Unless it was stopped, the card comes to the front and session.run.cardPlaced
/// is set.
void flyToCorner(int card, double left, double top);

/// Flies until the card's centre is at (x, y), rounded to whole pixels. Raises 6 for a place outside 16 bits.
void moveCardTo(int card, int x, int y);

/// Puts a card on top of or below all others and makes it visible.
void bringCardToFront(int card);
void sendCardToBack(int card);
