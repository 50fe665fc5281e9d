// A new database: where its folder goes, making the folder, and the session that it begins with.
#pragma once

#include <QString>

/// The folder for new databases that the settings name: `workingFolder` as it stands there ("MyDocs" or
/// nothing for the user's documents), resolved.
QString customDirectory(const QString& workingFolder);

/// What the pupil is told of that folder.
QString customDirectoryText(const QString& workingFolder);

/// The clean path of a database of that name in the folder. Raises 75 for a name that no folder can have:
/// folders are shared between systems, so what one of them refuses is refused here.
QString newDatabasePath(const QString& folder, const QString& name);

/// The warning about a folder that is there already.
QString folderExistsText(const QString& path);

/// Makes the folder and the session a database without cards in it, open like any other but for its
/// description, which isn't written yet. After an error, as makeFolder() raises them, nothing has changed.
void beginDatabase(const QString& path);
