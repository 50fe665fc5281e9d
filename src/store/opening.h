// How a chosen folder becomes the open database.
#pragma once

#include <QString>

/// Makes the folder the open database: loads it, lays its cards out in a block, lets the menus and buttons
/// work and remembers it as the last one. Raises what loading raises.
void openFolder(const QString& folder);

/// The same after everything of the database before has been cleared away: for a folder that the pupil has
/// chosen.
void openChosenFolder(const QString& folder);

/// Opens the database that the settings remember. When it can't be opened, the pupil is told; the folder
/// stays the open one in name only.
void openLastDatabase();

/// The database is open: card menus, mode buttons and refresh can be used.
void enableDatabaseControls();

/// Lays all cards out in a square block from the upper left, close together, each over the one before.
void tileCards();
