// Asking the pupil for a database.
#pragma once

#include <QString>

/// Lets the pupil choose a database, beginning in the working folder of the settings or, when there is none,
/// in `startFolder`. The database's folder, or "Cancel".
QString chooseDatabase(const QString& startFolder);
