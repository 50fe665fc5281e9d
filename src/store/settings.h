// The settings file of the installation, key by key. Every read goes to the file. The keys that the program
// knows, with their defaults, are in store/options.h.
//
// Where an administrator has installed the program, pupils can't write the file in its folder. What they and
// the program change then goes to a file of the user's own, whose keys come before the installed ones: these
// are the school's defaults.
#pragma once

#include "platform/profileFile.h"

#include <QString>
#include <QStringList>

/// The settings file in the program's folder.
QString settingsFile();

/// Where a changed setting goes: to the file in the program's folder, which everybody shares; to the user's
/// own file; or nowhere, since neither can be written.
enum class SettingsPlace { programFolder, usersOwn, nowhere };
SettingsPlace settingsPlace();

/// The value of the key, `absent` when the file, the section or the key doesn't exist. The installation's
/// file is read together with the user's own where that one is in use.
QString readSetting(const QString& file, const QString& section, const QString& key, const QString& absent);

/// Writes one key; all others stay. A file that can't be written is not reported: the result is true then
/// too.
bool writeSetting(const QString& file, const QString& section, const QString& key, const QString& value);

/// Writes these lines in one replacement of the file that settingsPlace() names. In the user's own file only
/// those that differ from what is read now, so that the others still follow the installation. False when they
/// could not be written.
bool writeInstalledSettings(const QList<ProfileLine>& lines);

/// The values of these keys from one reading of each file; the lines' own values are those of missing keys.
QStringList readInstalledSettings(const QList<ProfileLine>& lines);

/// The user's own settings file.
QString ownSettingsFile();
