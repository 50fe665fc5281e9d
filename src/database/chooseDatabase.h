// Asking the pupil for a database.
#pragma once

#include <QString>

/// Lets the pupil choose a database, starting in the working folder from the settings or, without one, in
/// `startFolder`. Returns the database's folder or "Cancel".
QString chooseDatabase(const QString& startFolder);
