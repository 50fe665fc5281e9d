// Sorting in view: card after card flies to its place on a diagonal of the board.
//
// Cards with equal keys are taken from the highest number down. Only places on the screen change.
#pragma once

void sortTextUp(int field);
void sortTextDown(int field);
void sortNumbersUp(int field);
void sortNumbersDown(int field);

/// Sorts by session.chosenField in session.sortDirection with the routine that its type asks for.
void sortByChosenField();
