#include "sampleDatabase.h"

#include "cardPicture.h"
#include "monster.h"
#include "voices.h"

#include "core/session.h"
#include "platform/wholeFile.h"
#include "store/cardFiles.h"
#include "store/descriptionFile.h"
#include "store/paths.h"

#include <QCryptographicHash>
#include <QDir>

#include <stdexcept>

namespace {

constexpr int onlyCard = 1; // of the session: the cards pass through it one by one

void openEmptyFolder(const QString& path)
{
    QDir folder(path);
    if (!folder.mkpath("."))
        throw std::runtime_error("can't make " + path.toStdString());
    for (const QString& name : folder.entryList({"*.tcd", "*.bmp", "*.snd"}, QDir::Files))
        folder.remove(name);
    session = {};
    session.dbPath = path;
    session.cardSize = 1;
}

void describe(const QList<SampleField>& fields)
{
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

/// Eight capitals that stay with the card whatever else changes in the table. They put the cards into an
/// order that follows none of their values, so that every sort has something to do.
QString cardIdOf(const QString& title, const QString& name)
{
    const QByteArray hash = QCryptographicHash::hash((title + '/' + name).toUtf8(), QCryptographicHash::Md5);
    QString id;
    for (int i = 0; i < 8; ++i)
        id += QChar('A' + static_cast<uchar>(hash[i]) % 26);
    return id;
}

QImage pictureOf(const SampleCard& card, const QString& svgFolder)
{
    if (card.cells.contains("Picture"))
        return drawSvg(QDir(svgFolder).filePath(card["Picture"]));
    return drawMonster(monsterOf(card));
}

QByteArray soundOf(const SampleCard& card)
{
    return waveBytes(card["Sound"] == "call" ? callOf(monsterOf(card)) : voiceOf(card["Sound"]));
}

void writeCard(const SampleCard& card, const QString& id, const QString& svgFolder)
{
    session.cardId[onlyCard] = id;
    session.cardValue[onlyCard][0] = "00000000"; // no place yet
    for (int f = 1; f <= session.numFields; ++f)
        session.DataBox[f] = card[session.fieldName[f]];
    saveCardValues(onlyCard);
    session.Picture1.image = pictureOf(card, svgFolder);
    saveCardPicture(onlyCard);
    if (!card["Sound"].isEmpty())
        replaceFile(filePathIn(session.dbPath, id + ".snd"), soundOf(card));
}

} // namespace

void writeSampleDatabase(const CardTable& table, const QString& svgFolder, const QString& outFolder)
{
    openEmptyFolder(QDir(outFolder).filePath(table.title));
    describe(table.fields);
    for (const SampleCard& card : table.cards)
        writeCard(card, cardIdOf(table.title, card[table.fields[0].name]), svgFolder);
}
