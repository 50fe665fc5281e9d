// Paths of the files of a database. A separator is "\" or "/", since old settings may hold paths of other
// systems.
#pragma once

#include <QString>

/// The file that makes a folder a database.
inline constexpr QLatin1StringView descriptionName("db-info.tdb");

/// The path with every run of separators after its second character reduced to one; a network path keeps its
/// leading pair. Apply it to every path before opening it.
QString cleanPath(const QString& path);

/// The text after the last separator.
QString lastPathPart(const QString& path);

/// The path of an entry of the folder, with a separator between them unless the folder ends with one.
QString joinPath(const QString& folder, const QString& name);

/// The clean path of the folder's file of that name. If there is none, a file whose name differs only in case
/// is taken, since folders come from systems that ignore case.
QString filePathIn(const QString& folder, const QString& name);
