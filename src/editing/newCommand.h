// "New": leaving the open database and making another.
#pragma once

/// Leaves the open database and shows the wizard. Cancelled there, its path, its number of cards and the
/// menus stay, over an emptied board.
void closeDatabase();

/// Shows the wizard; then, unless it was cancelled, designs the cards of the new database and writes its
/// description.
void makeNewDatabase();
