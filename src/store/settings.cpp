#include "store/settings.h"

#include "platform/desktop.h"
#include "platform/profileFile.h"
#include "store/paths.h"

using namespace Qt::StringLiterals;

QString settingsFile() { return joinPath(desktop.files.programFolder(), u"tallymoor.ini"_s); }

QString readSetting(const QString& file, const QString& section, const QString& key, const QString& absent)
{
    return readProfile(section, key, absent, file);
}

bool writeSetting(const QString& file, const QString& section, const QString& key, const QString& value)
{
    writeProfile({{section, key, value}}, file);
    return true;
}
