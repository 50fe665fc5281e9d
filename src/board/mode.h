// The two views of a database: cards on the board, or the table.
#pragma once

#include <QString>

/// Shows the view of that word, "card" or "table", without captions and without the graph. An error shows
/// the error box and leaves the state reached so far.
void setMode(const QString& mode);

/// Presses btnCards, as commands do that work on the board: unlike the pupil's own click, it doesn't read
/// the folder again.
void showCardMode();
