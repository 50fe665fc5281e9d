// Grouping in view: a column of cards for each value of a field, the fullest first, and "Other" for the rest.
#pragma once

/// Columns that a board has room for, "Other" not counted.
inline constexpr int mostGroups = 11;

/// Finds the values of the field and lays out their labels along the board's lower edge.
/// Values that differ only in case share a column unless case counts; an empty value has one of its own.
void buildGroups(int field);

/// Flies each card to the column of its value. Columns grow upwards, the older cards over the newer.
void moveCardsToGroups(int field);
