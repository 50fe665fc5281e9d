#include "store/questionFiles.h"

#include "core/session.h"
#include "platform/errors.h"
#include "platform/folderLock.h"
#include "platform/textFile.h"
#include "platform/wholeFile.h"
#include "store/fileStates.h"
#include "store/keptVersions.h"
#include "store/paths.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestNotes = 16 << 20; // bytes

constexpr char headingOfCopy[] = "====================\r\n"
                                 "Tallymoor Jotter\r\n"
                                 "====================\r\n"
                                 "\r\n";

QString notesPath() { return filePathIn(session.dbPath, u"Questions.txt"_s); }
QString copyPath() { return filePathIn(session.dbPath, u"Qa.txt"_s); }

QByteArray copyOf(const QByteArray& notes) { return headingOfCopy + notes; }

/// Replaces the file, but first keeps what is in it unless it is what this program `left` there. True when it
/// was kept.
bool replaceKeepingOthers(const QString& path, const QByteArray& bytes, const FileState& left)
{
    const FileState now = stateToReplace(path);
    const bool others = now.error == 0 && now != left && now.bytes != bytes;
    if (others)
        keepVersions({path});
    replaceAndRemember(path, bytes);
    return others;
}

} // namespace

std::optional<QString> readQuestions()
{
    if (session.dbPath.isEmpty() || !QFileInfo::exists(notesPath()))
        return std::nullopt;
    return decodeText(readWholeFile(notesPath(), largestNotes));
}

QString openQuestions()
{
    const QString path = notesPath();
    QString notes;
    ignoringErrors({
        [&] { notes = decodeText(readAndRemember(path, largestNotes)); },
        [&] {
            if (knownState(path).error == fileNotFound)
                replaceAndRemember(path, {});
        },
    });
    return notes;
}

bool saveQuestions(const QString& notes)
{
    const FolderLock lock(session.dbPath);
    const QString path = notesPath();
    const FileState left = knownState(path);
    const QByteArray bytes = encodeText(notes + u"\r\n"_s);
    if (bytes.size() > largestNotes)
        throw RuntimeError(outOfMemory); // they could not be read again
    const bool othersKept = replaceKeepingOthers(path, bytes, left);
    replaceKeepingOthers(copyPath(), copyOf(bytes), {0, copyOf(left.bytes)});
    return othersKept;
}

QString questionsForPrograms() { return QFileInfo::exists(copyPath()) ? copyPath() : QString(); }

void deleteAnswers()
{
    const bool isDatabase = QFileInfo::exists(filePathIn(session.dbPath, descriptionName));
    if (!session.dbPath.isEmpty() && isDatabase)
        QFile::remove(filePathIn(session.dbPath, u"Answers.txt"_s));
}
