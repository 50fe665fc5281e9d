// The settings file of the installation, key by key. Every read goes to the file. The keys that the program
// knows, with their defaults, are in store/options.h.
#pragma once

#include <QString>

/// The settings file in the program's folder.
QString settingsFile();

/// The value of the key, `absent` when the file, the section or the key doesn't exist.
QString readSetting(const QString& file, const QString& section, const QString& key, const QString& absent);

/// Writes one key; all others stay. A file that can't be written is not reported: the result is true then
/// too.
bool writeSetting(const QString& file, const QString& section, const QString& key, const QString& value);
