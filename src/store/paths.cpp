#include "store/paths.h"

#include <QDir>
#include <QFileInfo>

namespace {

bool isSeparator(QChar character) { return character == u'\\' || character == u'/'; }

} // namespace

QString cleanPath(const QString& path)
{
    QString clean = path.left(2);
    for (qsizetype i = 2; i < path.size(); ++i) {
        const bool runGoesOn = i + 1 < path.size() && isSeparator(path[i]) && isSeparator(path[i + 1]);
        if (!runGoesOn)
            clean += path[i];
    }
    return clean;
}

QString lastPathPart(const QString& path)
{
    return path.sliced(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1);
}

QString joinPath(const QString& folder, const QString& name)
{
    const bool ended = !folder.isEmpty() && isSeparator(folder.back());
    return folder + (ended ? QString() : QString(QDir::separator())) + name;
}

QString filePathIn(const QString& folder, const QString& name)
{
    const QString path = cleanPath(joinPath(folder, name));
    if (QFileInfo::exists(path))
        return path;
    const QStringList entries = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return cleanPath(joinPath(folder, entry));
    }
    return path;
}
