#include "store/cardFiles.h"

#include "core/session.h"
#include "platform/bitmapFile.h"
#include "platform/desktop.h"
#include "platform/pictureFile.h"
#include "platform/stretching.h"
#include "platform/textFile.h"
#include "platform/wholeFile.h"
#include "store/fileStates.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString cardFile(int card, QLatin1StringView ending)
{
    return cardFilePath(session.dbPath, session.cardId[card], ending);
}

/// The picture for Picture1. Cards are saved as bitmaps, which are shown unscaled; what somebody has put in a
/// bitmap's place, a photo of any size say, is shown whole, like a dropped picture.
QImage cardPicture(const QByteArray& bytes)
{
    const QSize box(session.editor.Picture1.width, session.editor.Picture1.height);
    const QImage picture = decodePicture(bytes, box);
    const bool fits = picture.width() <= box.width() && picture.height() <= box.height();
    return fits || isBitmap(bytes) ? picture : stretched(picture, box);
}

bool sameIdentity(const QString& recordName, const QString& cardId)
{
    return cardIdOf(recordName).compare(cardId, Qt::CaseInsensitive) == 0;
}

} // namespace

QString newCardId()
{
    QString id;
    for (int i = 0; i < idLength; ++i)
        id += QChar(int(desktop.random() * 26) + 'A');
    return id;
}

QString cardIdOf(const QString& recordName)
{
    return recordName.left(recordName.size() - recordEnding.size()).left(idLength);
}

QString cardFilePath(const QString& folder, const QString& cardId, QLatin1StringView ending)
{
    return filePathIn(folder, cardId + ending);
}

QString cardRecordPath(int card)
{
    const QString usual = cardFile(card, recordEnding);
    const QString& own = session.recordName[card];
    const bool longer = own.size() > idLength + recordEnding.size();
    return longer && !QFileInfo::exists(usual) ? filePathIn(session.dbPath, own) : usual;
}

void loadCardValues(int card)
{
    ItemReader reader{QString()};
    ignoringErrors({[&] { reader = ItemReader(readAndRemember(cardRecordPath(card), largestTextFile)); }});
    QString item;
    for (int f = 0; f <= session.numFields; ++f) {
        if (!reader.atEnd())
            item = reader.next();
        session.cardValue[card][f] = item;
    }
}

QString cardPicturePath(int card) { return cardFile(card, pictureEnding); }

QByteArray readCardPicture(int card) { return readAndRemember(cardPicturePath(card), largestFile); }

void loadCardPicture(int card)
{
    if (session.cardSize == stripSize)
        session.editor.Picture1.image = {};
    else
        withErrorBox([card] { session.editor.Picture1.image = cardPicture(readCardPicture(card)); });
}

bool showCardPicture(const QByteArray& bytes)
{
    return withErrorBox([&bytes] { session.editor.Picture1.image = cardPicture(bytes); });
}

QString cardSoundPath(int card) { return cardFile(card, soundEnding); }

bool cardHasSound(int card) { return QFileInfo(cardSoundPath(card)).isFile(); }

void playCardSound(int card)
{
    if (cardHasSound(card))
        desktop.sound.play(cardSoundPath(card));
}

QStringList cardFilesOfOneRecord(const QString& cardId, const QString& recordName)
{
    const QString record = recordName.isEmpty() ? cardId + recordEnding : recordName;
    const QStringList records = QDir(session.dbPath).entryList({u"*"_s + recordEnding}, QDir::Files);
    const bool shared = std::any_of(records.begin(), records.end(), [&](const QString& other) {
        return other.compare(record, Qt::CaseInsensitive) != 0 && sameIdentity(other, cardId);
    });
    QStringList files{filePathIn(session.dbPath, record)};
    if (!shared)
        files += {cardFilePath(session.dbPath, cardId, pictureEnding),
                  cardFilePath(session.dbPath, cardId, soundEnding)};
    return files;
}
