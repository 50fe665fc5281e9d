#include "store/descriptionFile.h"

#include "core/session.h"
#include "platform/errors.h"
#include "platform/pictureFile.h"
#include "platform/textFile.h"
#include "platform/wholeFile.h"
#include "store/paths.h"

#include <QDir>

namespace {

constexpr int cardMenu = 1;
constexpr int deleteCardLine = 1;

const QString oldVersion = QStringLiteral("1.0.0");
const QString newVersion = QStringLiteral("1.1.0");
constexpr int oldListLength = 6;
constexpr int newListLength = 12;

QString descriptionPath() { return filePathIn(session.dbPath, QLatin1String(descriptionName)); }

ItemReader openDescription() { return ItemReader(readWholeFile(descriptionPath(), largestTextFile)); }

/// One step of the reading. What fails in it is told and passed over.
void attempt(const std::function<void()>& step)
{
    ignoringErrors({step}, [] {
        showErrorBox(
            QStringLiteral("There was a problem reading your database, some of the data may be missing"));
    });
}

/// The next item as a number from `least` to `most`; any other is an error.
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
    session.editorFieldName[f] = session.fieldName[f];
    attempt([&] { session.fieldType[f] = reader.next(); });
    attempt([&] { session.fieldUseList[f] = reader.nextTruth(); });
    if (!session.fieldUseList[f])
        return;
    for (int item = 1; item <= listLength; ++item)
        attempt([&] { session.fieldListItem[f][item] = reader.next(); });
    for (int item = listLength + 1; item <= newListLength; ++item)
        session.fieldListItem[f][item].clear(); // a shorter list must not inherit another database's answers
}

void applyStatus()
{
    const bool readOnly = session.databaseStatus == QLatin1String("RO");
    session.menuItemState[cardMenu][deleteCardLine] =
        readOnly ? QStringLiteral("Don'tShow") : QStringLiteral("Show");
    session.designReadOnly = readOnly;
}

/// An empty name empties the board's background. A name without a folder lies in the database's own.
void loadBackground()
{
    const QString& name = session.backgroundPicture;
    if (name.isEmpty())
        session.backgroundImage = {};
    else if (QDir::isRelativePath(name))
        session.backgroundImage = readPicture(filePathIn(session.dbPath, name));
    else
        session.backgroundImage = readPicture(cleanPath(name));
}

} // namespace

void readDbVersion()
{
    session.dbVersion = oldVersion;
    ItemReader reader = openDescription();
    QString last;
    while (!reader.atEnd())
        last = reader.next();
    if (!last.startsWith(QLatin1String("VER")))
        return;
    if (last.size() < 6) // cut short
        throw RuntimeError(pastEndOfFile);
    session.dbVersion = last.mid(5, last.size() - 6); // between the quotes
}

void readDbInfo()
{
    for (int f = 1; f <= session.maxFields; ++f)
        session.editorFieldName[f] = QStringLiteral("Fieldname") + QString::number(f);
    attempt(readDbVersion);
    const int listLength = session.dbVersion == oldVersion ? oldListLength : newListLength;

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

    if (background != session.backgroundPicture) {
        session.backgroundPicture = background;
        attempt(loadBackground);
    }
}

void writeDbInfo()
{
    session.dbVersion = newVersion;
    withErrorBox([] {
        ItemWriter writer;
        writer.number(session.numFields);
        writer.number(session.cardSize);
        writer.quoted(session.backgroundPicture);
        for (int f = 1; f <= session.numFields; ++f) {
            writer.quoted(session.fieldName[f]);
            writer.quoted(session.fieldType[f]);
            writer.bare(session.fieldUseList[f] ? QStringLiteral("True") : QStringLiteral("False"));
            for (int item = 1; session.fieldUseList[f] && item <= newListLength; ++item)
                writer.quoted(session.fieldListItem[f][item]);
        }
        writer.bare(session.databaseStatus);
        writer.bare(QStringLiteral("VER=\"") + session.dbVersion + QLatin1Char('"'));
        replaceFile(descriptionPath(), writer.bytes());
    });
}
