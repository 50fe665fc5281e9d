#include "store/options.h"

#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/profileFile.h"
#include "platform/values.h"
#include "store/paths.h"
#include "store/settings.h"

#include <algorithm>

namespace {

QString latin(const char* text) { return QLatin1StringView(text); }

/// Also a path of another system: "C:\Class", "\\server\class".
bool isAbsolute(const QString& path)
{
    return path.startsWith(u'/') || path.startsWith(u'\\') || path.mid(1).startsWith(u':');
}

} // namespace

QString read(const Option& option)
{
    return readSetting(settingsFile(), latin(option.section), latin(option.key), latin(option.absent));
}

QStringList readSettings(const QList<Option>& options)
{
    QStringList values;
    for (const Option& option : options)
        values.append(read(option));
    return values;
}

QString readFolder(const Option& option) { return fullFolder(read(option)); }

QString fullFolder(const QString& path)
{
    if (path.isEmpty() || path == documentsWord || isAbsolute(path))
        return path;
    return joinPath(desktop.files.programFolder(), path);
}

void write(const Option& option, const QString& value)
{
    writeSetting(settingsFile(), latin(option.section), latin(option.key), value);
}

bool writeSettings(const QList<Setting>& settings)
{
    QList<ProfileLine> lines;
    for (const auto& [option, value] : settings)
        lines.append({latin(option.section), latin(option.key), value});
    return writeProfile(lines, settingsFile());
}

QString resolvedFolder(const QString& workingFolder)
{
    return workingFolder == documentsWord ? desktop.files.documentsFolder() : workingFolder;
}

QString optionsLetter() { return optionsLetterOf(read(option::optionsKey)); }

QString optionsLetterOf(const QString& value)
{
    const auto letter =
        std::find_if(value.begin(), value.end(), [](QChar candidate) { return candidate.isLetter(); });
    return letter == value.end() ? latin(option::optionsKey.absent) : QString(letter->toUpper());
}

qint16 soundStatusOf(const QString& value)
{
    qint16 status = 0;
    ignoringErrors({[&] { status = toInteger(leadingNumber(value)); }});
    return status;
}
