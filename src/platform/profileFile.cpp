#include "platform/profileFile.h"

#include "platform/errors.h"
#include "platform/textFile.h"
#include "platform/wholeFile.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>
#include <QThread>

#include <cerrno>
#include <optional>
#include <sys/file.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestValue = 199;
constexpr int lockPatienceMs = 3000;
constexpr int lockPauseMs = 10;
const QString lineEnd = u"\r\n"_s;

/// The lines including their line ends, so that unchanged ones are written back byte for byte.
QStringList linesOf(const QString& text)
{
    QStringList lines;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = text.indexOf(u'\n', start);
        const qsizetype next = end < 0 ? text.size() : end + 1;
        lines.append(text.sliced(start, next - start));
        start = next;
    }
    return lines;
}

bool sameName(const QString& one, const QString& other)
{
    return one.trimmed().compare(other.trimmed(), Qt::CaseInsensitive) == 0;
}

/// The section's name if the line is a section header.
std::optional<QString> sectionName(const QString& line)
{
    const QString content = line.trimmed();
    const qsizetype end = content.indexOf(u']');
    if (!content.startsWith(u'[') || end < 0)
        return std::nullopt;
    return content.sliced(1, end - 1);
}

bool isKeyLine(const QString& line, const QString& key)
{
    const qsizetype equals = line.indexOf(u'=');
    return equals >= 0 && !line.trimmed().startsWith(u';') && sameName(line.first(equals), key);
}

/// The lines of the first section of that name without its header: `begin` up to but not including `end`.
struct SectionLines {
    qsizetype begin;
    qsizetype end;
};

std::optional<SectionLines> findSection(const QStringList& lines, const QString& name)
{
    std::optional<SectionLines> found;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const auto head = sectionName(lines[i]);
        if (head && found)
            return SectionLines{found->begin, i};
        if (head && sameName(*head, name))
            found = SectionLines{i + 1, lines.size()};
    }
    return found;
}

QString withoutQuotes(const QString& value)
{
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == u'"' || value.front() == u'\'');
    return quoted ? value.sliced(1, value.size() - 2) : value;
}

QString withoutBlanksAtEnd(QString text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

std::optional<QString> valueIn(const QStringList& lines, const QString& section, const QString& key)
{
    const auto place = findSection(lines, section);
    if (!place)
        return std::nullopt;
    for (qsizetype i = place->begin; i < place->end; ++i) {
        if (isKeyLine(lines[i], key))
            return withoutQuotes(lines[i].sliced(lines[i].indexOf(u'=') + 1).trimmed());
    }
    return std::nullopt;
}

/// Ends the last line, so that another can follow it.
void endLastLine(QStringList& lines)
{
    if (!lines.isEmpty() && !lines.last().endsWith(u'\n'))
        lines.last() += lineEnd;
}

void setValue(QStringList& lines, const QString& section, const QString& key, const QString& value)
{
    const QString line = key + u'=' + value + lineEnd;
    const auto place = findSection(lines, section);
    if (!place) {
        endLastLine(lines);
        lines << u'[' + section + u']' + lineEnd << line;
        return;
    }
    for (qsizetype i = place->begin; i < place->end; ++i) {
        if (isKeyLine(lines[i], key)) {
            lines[i] = lines[i].first(lines[i].indexOf(u'=') + 1) + value + lineEnd;
            return;
        }
    }
    qsizetype after = place->end; // new keys come before the blank lines between two sections
    while (after > place->begin && lines[after - 1].trimmed().isEmpty())
        --after;
    if (after == lines.size())
        endLastLine(lines);
    lines.insert(after, line);
}

/// Keeps other programs from changing the file while it exists. The lock is held on an empty file beside the
/// profile, which stays; the system releases the lock when the process ends, even by a crash. Where that file
/// can't be made, the profile itself is locked: there it is overwritten, never replaced. On a disk without
/// locks, writing goes ahead unlocked.
class ProfileLock {
public:
    explicit ProfileLock(const QString& path)
        : file(QFileInfo(path).path() + u"/."_s + QFileInfo(path).fileName() + u".lock"_s)
    {
        const bool isNew = !file.exists();
        if (file.open(QIODevice::ReadWrite)) {
            if (isNew && QFile::exists(path))
                file.setPermissions(
                    QFile::permissions(path)); // every user who may change the profile may lock it
        } else if (!file.open(QIODevice::ReadOnly)) {
            file.setFileName(path);
            if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
                return;
        }
        held = waitForLock();
    }

    bool isHeld() const { return held; }

private:
    bool waitForLock()
    {
        const QDeadlineTimer patience(lockPatienceMs);
        while (flock(file.handle(), LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR)
                return true;
            if (patience.hasExpired())
                return false;
            QThread::msleep(lockPauseMs);
        }
        return true;
    }

    QFile file;
    bool held = false;
};

QStringList linesOfFile(const QString& path)
{
    try {
        return linesOf(decodeText(readWholeFile(path, largestTextFile)));
    } catch (const RuntimeError& error) {
        if (error.number() != fileNotFound)
            throw;
        return {};
    }
}

} // namespace

QString readProfile(const QString& section, const QString& key, const QString& absent, const QString& path)
{
    return readProfile({{section, key, absent}}, path).first();
}

QStringList readProfile(const QList<ProfileLine>& wanted, const QString& path)
{
    QStringList lines;
    ignoringErrors({[&] { lines = linesOfFile(path); }});
    QStringList values;
    for (const auto& [section, key, absent] : wanted)
        values.append(valueIn(lines, section, key).value_or(withoutBlanksAtEnd(absent)).left(longestValue));
    return values;
}

bool writeProfile(const QList<ProfileLine>& changes, const QString& path)
{
    static const QRegularExpression breaks(u"[\\r\\n\\x00]"_s);
    bool written = false;
    ignoringErrors({[&] {
        const ProfileLock lock(path);
        if (!lock.isHeld())
            return;
        const QStringList before = linesOfFile(path);
        QStringList lines = before;
        for (const auto& [section, key, value] : changes)
            setValue(lines, section, key, QString(value).replace(breaks, u" "_s));
        if (lines != before) // else there is no need to wait for the disk
            replaceFile(path, encodeText(lines.join(QString())));
        sweepLeftovers(QFileInfo(path).path());
        written = true;
    }});
    return written;
}
