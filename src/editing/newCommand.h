// "New": leaving the open database and making another.
#pragma once

/// Leaves the open database and makes another.
void newCommand();

/// Empties board, field table and title. The path, the number of cards and the menus stay, so that they still
/// work when the wizard that follows is cancelled.
void closeDatabase();

/// Shows the wizard; then, unless it was cancelled, designs the cards of the new database and writes its
/// description.
void makeNewDatabase();
