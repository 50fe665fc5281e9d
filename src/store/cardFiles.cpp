#include "store/cardFiles.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/pictureFile.h"
#include "platform/textFile.h"
#include "platform/wholeFile.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr int stripSize = 2;

QString cardFile(int card, const char* extension)
{
    return filePathIn(session.dbPath, session.cardId[card] + QLatin1String(extension));
}

} // namespace

void loadCardValues(int card)
{
    ItemReader reader{QString()};
    ignoringErrors({[&] { reader = ItemReader(readWholeFile(cardFile(card, ".tcd"), largestTextFile)); }});
    QString item;
    for (int f = 0; f <= session.numFields; ++f) {
        if (!reader.atEnd())
            item = reader.next();
        session.cardValue[card][f] = item;
    }
}

void writeCardValues(int card)
{
    CardFields& values = session.cardValue[card];
    ItemWriter writer;
    writer.quoted(values[0]);
    for (int f = 1; f <= session.numFields; ++f) {
        values[f] = session.DataBox[f];
        writer.quoted(values[f]);
    }
    replaceFile(cardFile(card, ".tcd"), writer.bytes());
    session.box[card].tooltip = values[1];
}

void saveCardValues(int card)
{
    withErrorBox([card] { writeCardValues(card); });
}

QString cardPicturePath(int card) { return cardFile(card, ".bmp"); }

void loadCardPicture(int card)
{
    if (session.cardSize == stripSize)
        session.Picture1.image = {};
    else
        withErrorBox([card] { session.Picture1.image = readPicture(cardPicturePath(card)); });
}

bool showCardPicture(const QByteArray& bytes)
{
    return withErrorBox([&bytes] { session.Picture1.image = decodePicture(bytes); });
}

void writeCardPicture(int card)
{
    if (session.cardSize != stripSize)
        replaceFile(cardPicturePath(card), bitmapBytes(session.Picture1.shown()));
}

void saveCardPicture(int card)
{
    withErrorBox([card] { writeCardPicture(card); });
}

bool cardHasSound(int card) { return QFileInfo(cardFile(card, ".snd")).isFile(); }

void playCardSound(int card)
{
    if (cardHasSound(card))
        desktop.playSound(cardFile(card, ".snd"));
}

void deleteAnswers()
{
    if (!session.dbPath.isEmpty())
        QFile::remove(filePathIn(session.dbPath, QStringLiteral("Answers.txt")));
}
