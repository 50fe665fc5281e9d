#include "store/options.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
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

QString keyOf(const Option& option) { return latin(option.section) + u'\n' + latin(option.key); }

} // namespace

QString read(const Option& option)
{
    if (const auto kept = session.options.unwritten.constFind(keyOf(option));
        kept != session.options.unwritten.constEnd())
        return *kept;
    return readSetting(settingsFile(), latin(option.section), latin(option.key), latin(option.absent));
}

QStringList readSettings(const QList<Option>& options)
{
    QList<ProfileLine> lines;
    for (const Option& option : options)
        lines.append({latin(option.section), latin(option.key), latin(option.absent)});
    QStringList values = readInstalledSettings(lines);
    for (qsizetype i = 0; i < options.size(); ++i)
        values[i] = session.options.unwritten.value(keyOf(options[i]), values[i]);
    return values;
}

QString readFolder(const Option& option) { return fullFolder(read(option)); }

QString fullFolder(const QString& path)
{
    if (path.isEmpty() || path == documentsWord || isAbsolute(path))
        return path;
    return joinPath(desktop.files.programFolder(), path);
}

void write(const Option& option, const QString& value) { writeSettings({{option, value}}); }

bool writeSettings(const QList<Setting>& settings)
{
    QList<ProfileLine> lines;
    for (const auto& [option, value] : settings)
        lines.append({latin(option.section), latin(option.key), value});
    const bool written = writeInstalledSettings(lines);
    for (const auto& [option, value] : settings) {
        if (written)
            session.options.unwritten.remove(keyOf(option));
        else
            session.options.unwritten.insert(keyOf(option), value);
    }
    return written;
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
