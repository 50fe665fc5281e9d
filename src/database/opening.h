// How a chosen folder becomes the open database.
#pragma once

#include <QString>

/// Stops a run of cards without a message and closes its speed window. Needed before other cards come, with
/// which the run would go on.
void abandonRun();

/// Makes the folder the open database: loads it, lays its cards out in a block, enables menus and buttons and
/// saves it as the last database. Errors of loading are raised.
void openFolder(const QString& folder);

/// The same for a folder chosen by the pupil, after everything of the previous database has been cleared.
void openChosenFolder(const QString& folder);

/// Opens the last database of the settings. If that fails, an error is shown; dbPath and title then name the
/// folder although nothing is loaded.
void openLastDatabase();

/// Enables the card menus, the mode buttons and the refresh for an open database.
void enableDatabaseControls();

/// Lays all cards out in a square block from the upper left, close together, each on top of the one before.
void tileCards();
