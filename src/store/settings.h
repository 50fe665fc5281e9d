// The options of the installation. Every read goes to the file; a reader names its own default.
#pragma once

#include <QString>

/// The settings file in the program's folder.
QString settingsFile();

/// The value of the key, `absent` when the file, the section or the key isn't there.
QString readSetting(const QString& file, const QString& section, const QString& key, const QString& absent);

/// Writes the one key and leaves all others. True also when the file can't be written, which nobody is told.
bool writeSetting(const QString& file, const QString& section, const QString& key, const QString& value);
