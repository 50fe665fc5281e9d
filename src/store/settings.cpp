#include "store/settings.h"

#include "platform/desktop.h"
#include "store/paths.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString fileName = u"tallymoor.ini"_s;

/// A file that isn't there can be written when it can be made.
bool canBeWritten(const QString& file)
{
    const QFileInfo info(file);
    return info.exists() ? info.isWritable() : QFileInfo(info.path()).isWritable();
}

bool isAsRead(const ProfileLine& line)
{
    const QString none = u"\n"_s; // no value has a line break
    return readSetting(settingsFile(), line.section, line.key, none) == line.value;
}

} // namespace

QString ownSettingsFile() { return joinPath(desktop.files.ownFolder(), fileName); }

QString settingsFile() { return joinPath(desktop.files.programFolder(), fileName); }

SettingsPlace settingsPlace()
{
    if (canBeWritten(settingsFile()))
        return SettingsPlace::programFolder;
    return canBeWritten(ownSettingsFile()) ? SettingsPlace::usersOwn : SettingsPlace::nowhere;
}

QString readSetting(const QString& file, const QString& section, const QString& key, const QString& absent)
{
    const QString installed = readProfile(section, key, absent, file);
    const bool overlaid = file == settingsFile() && !canBeWritten(file);
    return overlaid ? readProfile(section, key, installed, ownSettingsFile()) : installed;
}

bool writeSetting(const QString& file, const QString& section, const QString& key, const QString& value)
{
    if (file == settingsFile())
        writeInstalledSettings({{section, key, value}});
    else
        writeProfile({{section, key, value}}, file);
    return true;
}

bool writeInstalledSettings(const QList<ProfileLine>& lines)
{
    if (settingsPlace() == SettingsPlace::programFolder)
        return writeProfile(lines, settingsFile());
    QList<ProfileLine> changes = lines;
    changes.removeIf(isAsRead);
    return changes.isEmpty() || writeProfile(changes, ownSettingsFile());
}

QStringList readInstalledSettings(const QList<ProfileLine>& lines)
{
    QStringList values = readProfile(lines, settingsFile());
    if (canBeWritten(settingsFile()))
        return values;
    QList<ProfileLine> overlaid = lines;
    for (qsizetype i = 0; i < lines.size(); ++i)
        overlaid[i].value = values[i];
    return readProfile(overlaid, ownSettingsFile());
}
