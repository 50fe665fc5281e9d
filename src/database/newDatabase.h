// A new database: where its folder is made, making it, and the initial session.
#pragma once

#include <QString>

/// The folder for new databases. `workingFolder` is the text in the settings; "MyDocs" or an empty text means
/// the user's documents.
QString customDirectory(const QString& workingFolder);

/// The text about that folder for the pupil.
QString customDirectoryText(const QString& workingFolder);

/// The clean path of a database of that name, without the blanks at its end, in the folder. Raises 75 for a
/// name that a folder can't have on every system, since folders are shared between systems, and for one that
/// begins with a dot.
QString newDatabasePath(const QString& folder, const QString& typed);

/// The warning about a folder that exists already.
QString folderExistsText(const QString& path);

/// Makes the folder and opens it as a database without cards. Its description isn't written yet. Raises what
/// makeFolder() raises; then nothing has changed.
void beginDatabase(const QString& path);
