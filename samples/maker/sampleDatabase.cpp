#include "sampleDatabase.h"

#include "cardPicture.h"
#include "monster.h"
#include "voices.h"

#include "core/session.h"
#include "platform/pictureFile.h"
#include "platform/wholeFile.h"
#include "store/cardSaving.h"
#include "store/descriptionFile.h"
#include "store/paths.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>

#include <stdexcept>

namespace {

constexpr int onlyCard = 1; // of the session: the cards pass through it one by one
constexpr QSize boardSize(1920, 1200);
const QString noBoard = "none"; // stands for no background in a description

void openEmptyFolder(const QString& path)
{
    QDir folder(path);
    if (!folder.mkpath("."))
        throw std::runtime_error("can't make " + path.toStdString());
    for (const QString& name :
         folder.entryList({"*.tdb", "*.tcd", "*.bmp", "*.snd", "*.jpg", noBoard}, QDir::Files))
        folder.remove(name);
    session = {};
    session.dbPath = path;
    session.cardSize = 1;
}

void describe(const QList<SampleField>& fields, const QString& board)
{
    session.backgroundPicture = board;
    session.numFields = fields.size();
    for (int f = 1; f <= session.numFields; ++f) {
        const SampleField& field = fields[f - 1];
        session.fieldName[f] = field.name;
        session.fieldType[f] = field.isNumber ? "123" : "Abc";
        session.fieldUseList[f] = !field.answers.isEmpty();
        for (int item = 1; item <= field.answers.size(); ++item)
            session.fieldListItem[f][item] = field.answers[item - 1];
    }
    writeDbInfo();
}

/// Eight capitals that depend on the card's name only. The order of the cards then follows none of their
/// values, so that every sort has something to do.
QString cardIdOf(const QString& title, const QString& name)
{
    const QByteArray hash = QCryptographicHash::hash((title + '/' + name).toUtf8(), QCryptographicHash::Md5);
    QString id;
    for (int i = 0; i < 8; ++i)
        id += QChar('A' + static_cast<uchar>(hash[i]) % 26);
    return id;
}

/// The drawing behind the card's figure: "Lake or pond" is lake-or-pond.svg.
QString groundOf(const SampleCard& card, const QString& field, const QDir& drawings)
{
    return drawings.filePath("grounds/" + card[field].toLower().replace(' ', '-') + ".svg");
}

QImage pictureOf(const SampleCard& card, const QString& ground, const QDir& drawings)
{
    if (!card.cells.contains("Picture"))
        return drawMonster(monsterOf(card));
    QStringList layers{drawings.filePath("pictures/" + card["Picture"])};
    if (!ground.isEmpty())
        layers.prepend(groundOf(card, ground, drawings));
    QImage picture = drawSvgs(layers, pictureSize);
    drawEdge(picture);
    return picture;
}

QByteArray soundOf(const SampleCard& card)
{
    return waveBytes(card["Sound"] == "call" ? callOf(monsterOf(card)) : voiceOf(card["Sound"]));
}

void writeCard(const SampleCard& card, const QString& id, const QString& ground, const QDir& drawings)
{
    session.cardId[onlyCard] = id;
    session.cardValue[onlyCard][0] = "00000000"; // no place yet
    for (int f = 1; f <= session.numFields; ++f)
        session.editor.DataBox[f] = card[session.fieldName[f]];
    saveCardValues(onlyCard);
    session.editor.Picture1.image = pictureOf(card, ground, drawings);
    saveCardPicture(onlyCard);
    if (!card["Sound"].isEmpty())
        replaceFile(filePathIn(session.dbPath, id + ".snd"), soundOf(card));
}

QByteArray jpegBytes(const QImage& picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "JPG", 92))
        throw std::runtime_error("can't make a JPEG file");
    return buffer.data();
}

/// Writes the background picture and returns its name. Without a background, writes a single pixel, hidden by
/// the menu band, under the name "none": after a database with a background the program looks for a file of
/// that name and would report a missing one.
QString writeBoard(const QString& drawing, const QDir& drawings)
{
    const bool has = !drawing.isEmpty();
    QImage onePixel(1, 1, QImage::Format_RGB32);
    onePixel.fill(paper);
    const QString name = has ? QFileInfo(drawing).completeBaseName() + ".jpg" : noBoard;
    replaceFile(filePathIn(session.dbPath, name),
                has ? jpegBytes(drawSvgs({drawings.filePath("boards/" + drawing)}, boardSize))
                    : bitmapBytes(onePixel));
    return name;
}

} // namespace

void writeSampleDatabase(const CardTable& table, const QDir& drawings, const QString& outFolder)
{
    openEmptyFolder(QDir(outFolder).filePath(table.title));
    describe(table.fields, writeBoard(table.board, drawings));
    for (const SampleCard& card : table.cards)
        writeCard(card, cardIdOf(table.title, card[table.fields[0].name]), table.ground, drawings);
}
