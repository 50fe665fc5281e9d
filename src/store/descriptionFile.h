// The description file, whose presence makes a folder a database: the fields, the size of the cards, the
// background picture and whether cards may be deleted.
#pragma once

#include "store/paths.h"

#include <QImage>
#include <QString>

/// Sets session.dbVersion from the file's last line, "1.0.0" when it holds none. Errors of reading the file
/// are raised.
void readDbVersion();

/// Reads the description into the session and loads the background picture if it has changed. Always reads to
/// the end: an item that can't be read is reported and keeps its former value. Afterwards
/// session.descriptionWhole tells whether all of it could be read.
void readDbInfo();

/// Writes the description from the session as version 1.1.0, unless that changes nothing. A version that was
/// not read, or not read whole, is kept first. A failure is shown in the error box, 75 when there is a
/// description that couldn't be read.
void writeDbInfo();

/// The picture of that name as the board's background; a name without a folder means a file in the database's
/// folder. Raises as readPicture().
QImage readBackground(const QString& name);
