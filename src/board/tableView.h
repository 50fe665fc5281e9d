// The table's data and routines: the rows of the cards in view, filled from the session, and their scroll
// position.
#pragma once

#include <QString>

/// In pixels: the height of a card's row, the widths of the columns of number and face.
inline constexpr int cardRowHeight = 60;
inline constexpr int numberColumnWidth = 40;
inline constexpr int faceColumnWidth = 80;

/// Builds rows and columns for the grid's present size, with the first card in the first row, and shows the
/// panel.
void layoutTable();

/// Fills the header and the rows in view. A failure is shown in the error box.
void fillTable();

/// Fills the rows anew after the cards have been loaded again, at the same scrolling as far as there are
/// cards.
void refillTable();

/// Scrolls so that the first row shows card `value` + 1. A value being edited is stored first.
void scrollTableTo(int value);

/// Writes session.table.editBoxText into the cell (gridEditRow, gridEditCol) and the card's record; after a
/// change of the label the face is redrawn. A failure is shown in the error box.
void storeCell();

/// Moves on from the edited cell after Enter: to the next field, the next row or the next page.
void moveToNextCell();

/// Does nothing: the cells of the table are read-only.
void openCell();

/// The row at that point of the grid, in pixels; 0 where no picture can be dropped, as on the last row.
int rowOfDrop(double x, double y);

/// Makes the picture file the one of the card that the row showed when it was filled, whatever its number has
/// become; nothing when the row showed none or that card is gone. The picture is stretched to the size that
/// pictures have. A file that can't be loaded is reported in the error box and changes nothing.
void dropPictureOnRow(int row, const QString& path);
