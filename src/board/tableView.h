// The table: a window of rows over the cards, filled by hand from the session, with a scroll bar of its own.
#pragma once

#include <QString>

/// Pixels of a card's row, and of the columns of its number and its face.
inline constexpr int cardRowHeight = 60;
inline constexpr int numberColumnWidth = 40;
inline constexpr int faceColumnWidth = 80;

/// Lays the grid out for its present size, with the first card in the first row, and shows the panel.
void layoutTable();

/// Fills the header and the rows in view. A failure is told in the error box.
void fillTable();

/// Brings the card after `value` into the first row. A value being written is stored before.
void scrollTableTo(int value);

/// Writes session.editBoxText into the cell (gridEditRow, gridEditCol) and the card's record; a new label is
/// drawn on the card's face. A failure is told in the error box.
void storeCell();

/// Where Enter leads from the cell being written: the next field, the next row, or a page further.
void moveToNextCell();

/// Opens a cell for editing. The table is a view of the data: this does nothing.
void openCell();

/// The first row whose upper edge the point lies under; 0 where no picture can be dropped, as on the last
/// row. Places in pixels of the grid, `rowTop` telling the upper edge of a row.
int rowOfDrop(double x, double y);

/// Makes the picture file the one of the card in that row, stretched to the size that pictures have. A file
/// that can't be loaded is told in the error box and changes nothing.
void dropPictureOnRow(int row, const QString& path);
