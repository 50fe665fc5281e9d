// Sorting on the board: the cards fly one by one to their places on a diagonal.
//
// Cards with equal keys are taken from the highest number down. Only the places on the board change.
#pragma once

void sortTextUp(int field);
void sortTextDown(int field);
void sortNumbersUp(int field);
void sortNumbersDown(int field);

/// Sorts by session.chosenField in session.sortDirection, as text or numbers by the field's type.
void sortByChosenField();
