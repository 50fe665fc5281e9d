// Paths of the files of a database. A separator is "\" or "/", as paths from other systems stand in old
// settings.
#pragma once

#include <QString>

/// The path with every run of separators after its second character cut down to one, so that a network path
/// keeps its leading pair. Every path that is opened passes through it.
QString cleanPath(const QString& path);

/// The text after the last separator.
QString lastPathPart(const QString& path);

/// The path of an entry of the folder, with a separator between them unless the folder ends with one.
QString joinPath(const QString& folder, const QString& name);

/// The clean path of the folder's file of that name. When there is none spelled like that, one that differs
/// only in capitals counts: folders come from systems to which these are the same.
QString filePathIn(const QString& folder, const QString& name);
