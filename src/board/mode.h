// The two views of a database: cards on the board, or the table.
#pragma once

#include <QString>

/// Switches to the view "card" or "table" and removes captions and graph. An error is shown in the error box;
/// the state reached so far stays.
void setMode(const QString& mode);

/// Switches to the cards, for commands that work on the board. Unlike a click on btnCards it doesn't reload
/// the folder.
void showCardMode();

/// The table or the chart covers the board: nothing on it is seen, read out or reached by keys.
bool boardIsCovered();
