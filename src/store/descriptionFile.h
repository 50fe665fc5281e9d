// The description file, whose presence makes a folder a database: the fields, the size of the cards, the
// background picture and whether cards may be deleted.
#pragma once

#include <QString>

inline constexpr auto descriptionName = "db-info.tdb";

/// Sets session.dbVersion: what the file's last line tells, "1.0.0" when it tells none. Raises what reading
/// raises.
void readDbVersion();

/// Reads the description into the session and loads the background picture when it is another one. Never
/// abandoned: what can't be read keeps its former value, and each such item gives a message.
void readDbInfo();

/// Writes the description from the session as version 1.1.0. A failure is told in the error box.
void writeDbInfo();
