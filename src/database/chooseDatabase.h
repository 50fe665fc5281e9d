// Asking the pupil for a database or a map in the program's own file dialog.
#pragma once

#include <QString>

/// Lets the pupil choose a database, starting in the working folder from the settings or, without one, in
/// `startFolder`. Returns the database's folder or "Cancel".
QString chooseDatabase(const QString& startFolder);

/// Lets the pupil choose a picture for the board, starting in `startFolder`. Returns its path or "Cancel".
QString importMap(const QString& startFolder);
