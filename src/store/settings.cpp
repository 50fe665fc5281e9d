#include "store/settings.h"

#include "platform/desktop.h"
#include "platform/profileFile.h"
#include "store/paths.h"

QString settingsFile() { return joinPath(desktop.programFolder(), QStringLiteral("tallymoor.ini")); }

QString readSetting(const QString& file, const QString& section, const QString& key, const QString& absent)
{
    return readProfile(section, key, absent, file);
}

bool writeSetting(const QString& file, const QString& section, const QString& key, const QString& value)
{
    writeProfile(section, key, value, file);
    return true;
}
