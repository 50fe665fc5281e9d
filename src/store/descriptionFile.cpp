#include "store/descriptionFile.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/folderLock.h"
#include "platform/pictureFile.h"
#include "platform/stretching.h"
#include "platform/textFile.h"
#include "platform/wholeFile.h"
#include "store/fileStates.h"
#include "store/keptVersions.h"
#include "store/paths.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int cardMenu = 1;
constexpr int deleteCardLine = 1;

const QString oldVersion = u"1.0.0"_s;
const QString newVersion = u"1.1.0"_s;
constexpr int oldListLength = 6;

QString descriptionPath() { return filePathIn(session.dbPath, descriptionName); }

ItemReader openDescription() { return ItemReader(readAndRemember(descriptionPath(), largestTextFile)); }

void tellProblem()
{
    showErrorBox(u"There was a problem reading your database, some of the data may be missing"_s);
}

/// One step of the reading. A failure is reported, and reading goes on.
void attempt(const std::function<void()>& step)
{
    ignoringErrors({step}, [] {
        session.descriptionWhole = false;
        if (!alreadyTold(descriptionPath()))
            tellProblem();
    });
}

/// The next item as a number from `least` to `most`; anything else is an error.
qint16 nextWithin(ItemReader& reader, int least, int most)
{
    const qint16 number = reader.nextInteger();
    if (number < least || number > most)
        throw RuntimeError(overflow);
    return number;
}

void readField(ItemReader& reader, int f, int listLength)
{
    attempt([&] { session.fieldName[f] = reader.next(); });
    session.editor.fieldName[f] = session.fieldName[f];
    attempt([&] { session.fieldType[f] = reader.next(); });
    attempt([&] { session.fieldUseList[f] = reader.nextTruth(); });
    if (!session.fieldUseList[f])
        return;
    for (int item = 1; item <= listLength; ++item)
        attempt([&] { session.fieldListItem[f][item] = reader.next(); });
    for (int item = listLength + 1; item <= lastAnswer; ++item)
        session.fieldListItem[f][item].clear(); // a shorter list must not inherit another database's answers
}

void applyStatus()
{
    const bool readOnly = session.databaseStatus == "RO"_L1;
    session.menu.menuItemState[cardMenu][deleteCardLine] = readOnly ? u"Don'tShow"_s : u"Show"_s;
    session.design.ChkRD = readOnly;
}

/// An empty name removes the board's background.
void loadBackground()
{
    const QString& name = session.backgroundPicture;
    session.backgroundImage = name.isEmpty() ? QImage() : readBackground(name);
}

QByteArray descriptionBytes()
{
    ItemWriter writer;
    writer.number(session.numFields);
    writer.number(session.cardSize);
    writer.quoted(session.backgroundPicture);
    for (int f = 1; f <= session.numFields; ++f) {
        writer.quoted(session.fieldName[f]);
        writer.quoted(session.fieldType[f]);
        writer.bare(session.fieldUseList[f] ? u"True"_s : u"False"_s);
        for (int item = 1; session.fieldUseList[f] && item <= lastAnswer; ++item)
            writer.quoted(session.fieldListItem[f][item]);
    }
    writer.bare(session.databaseStatus);
    writer.bare(u"VER=\""_s + session.dbVersion + u'"');
    return writer.bytes();
}

} // namespace

void readDbVersion()
{
    session.dbVersion = oldVersion;
    ItemReader reader = openDescription();
    QString last;
    while (!reader.atEnd())
        last = reader.next();
    if (!last.startsWith("VER"_L1))
        return;
    if (last.size() < 6) // cut short
        throw RuntimeError(pastEndOfFile);
    session.dbVersion = last.mid(5, last.size() - 6); // between the quotes
}

void readDbInfo()
{
    for (int f = 1; f <= session.maxFields; ++f)
        session.editor.fieldName[f] = u"Fieldname"_s + QString::number(f);
    session.descriptionWhole = true;
    attempt(readDbVersion);
    const int listLength = session.dbVersion == oldVersion ? oldListLength : lastAnswer;

    ItemReader reader{QString()};
    QString background = session.backgroundPicture;
    attempt([&] { reader = openDescription(); });
    attempt([&] { session.numFields = nextWithin(reader, 1, session.maxFields); });
    attempt([&] { session.cardSize = nextWithin(reader, 0, 2); });
    attempt([&] { background = reader.next(); });
    for (int f = 1; f <= session.numFields; ++f)
        readField(reader, f, listLength);
    attempt([&] { session.databaseStatus = reader.next(); });
    applyStatus();
    if (session.descriptionWhole)
        session.toldStates.remove(descriptionPath());
    else
        rememberTold(descriptionPath());

    if (background != session.backgroundPicture) {
        session.backgroundPicture = background;
        ignoringErrors({loadBackground}, tellProblem);
    }
}

void writeDbInfo()
{
    session.dbVersion = newVersion;
    withErrorBox([] {
        const QString path = descriptionPath();
        const QByteArray bytes = descriptionBytes();
        const FolderLock lock(session.dbPath);
        const FileState known = knownState(path);
        const FileState now = stateToReplace(path);
        const bool isThere = now.error == 0;
        if (isThere && known.error == 0 && itemsIn(known.bytes) == itemsIn(bytes))
            return; // nothing was changed here
        if (isThere && known.error != 0 && known.error != fileNotFound)
            throw RuntimeError(pathAccessError);
        if (isThere && (now != known || !session.descriptionWhole))
            keepVersions({path});
        replaceAndRemember(path, bytes);
    });
}

QImage readBackground(const QString& name)
{
    // Cards lie on places of a map, so it keeps its pixels on every screen; only one larger than any screen
    // is shrunk.
    const QSize needed(3840, 2400);
    const QImage picture =
        readPicture(QDir::isRelativePath(name) ? filePathIn(session.dbPath, name) : cleanPath(name), needed);
    const QSize covering = picture.size().scaled(needed, Qt::KeepAspectRatioByExpanding);
    return covering.width() < picture.width() ? stretched(picture, covering) : picture;
}
