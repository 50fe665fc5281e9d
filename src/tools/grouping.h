// Grouping on the board: a column of cards for each value of a field, the largest group first, and "Other"
// for the rest.
#pragma once

/// The largest number of columns, not counting "Other".
inline constexpr int mostGroups = 11;

/// Finds the values of the field and lays out their labels along the board's lower edge. Values that differ
/// only in case share a column unless comparison is case-sensitive; empty values have a column of their own.
void buildGroups(int field);

/// Flies each card to the column of its value. Columns grow upwards, each new card behind those already
/// there.
void moveCardsToGroups(int field);
