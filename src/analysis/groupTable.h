// The values of a field as a table of at most 40 labelled numbers: what a graph shows and the statistics
// count. A figure in a text is the number that the text begins with, else 0.
#pragma once

/// Fills session.groupTable with the distinct values of the field, in the order in which the cards have them,
/// and how many cards have each. Exact text counts: "Red", "red" and "red " are three groups, and so is no
/// text at all. An error is shown in a box and leaves the state reached so far.
void countGroups(int field);

/// Fills the table with one row for each card: its number in the field, named by its value of field 1.
/// Raises 6 for a number too large for single precision, 9 for more than 40 cards.
void listValues(int field);

/// Sets session.graph.graphMaxValue to the largest number of the table.
void findGraphMax();

/// Sorts the table, rising: by label, capitals before small letters, for a text field and where all data are
/// shown; by the number in the label otherwise. Equal ones keep their order.
void sortGroups(int field);

/// Sets session.graph.graphMaxValue to the largest value of the scattergram's Y field; the X field doesn't
/// count.
void findScatterMax();
