// The one way in which a card moves in view.
#pragma once

enum class Axis { x, y };

/// Moves the card along one axis towards `target` (board pixels) in steps of half of session.animationSpeed,
/// drawing and yielding after each. True when it came within one step; false when the run was stopped.
/// At speed 0 it waits for events: the pupil has paused the run.
bool flyAlong(int card, Axis axis, double target);

/// The same, and when it was not stopped the card stands exactly at the target.
bool flyOnto(int card, Axis axis, double target);

/// Flies along x, then along y. When it was not stopped, the card comes to the front and counts as placed.
void flyToCorner(int card, double left, double top);

/// Flies so that the card's centre comes to (x, y), as near as whole pixels allow.
/// A place outside 16 bits is error 6.
void moveCardTo(int card, int x, int y);

/// Brings a card over or under all others, and shows it.
void bringCardToFront(int card);
void sendCardToBack(int card);
