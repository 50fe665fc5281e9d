#include "sampleDatabase.h"

#include "cardPicture.h"
#include "monster.h"
#include "voices.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QSaveFile>

#include <stdexcept>

namespace {

QString quoted(const QString& text) { return '"' + text + '"'; }

void writeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit())
        throw std::runtime_error("can't write " + path.toStdString());
}

void writeLines(const QString& path, const QStringList& lines)
{
    writeFile(path, (lines.join("\r\n") + "\r\n").toLatin1());
}

QStringList description(const QList<SampleField>& fields)
{
    QStringList lines{QString(" %1 ").arg(fields.size()), " 1 ", quoted("none")};
    for (const SampleField& field : fields) {
        lines += {quoted(field.name), quoted(field.isNumber ? "123" : "Abc"),
                  field.answers.isEmpty() ? "False" : "True"};
        for (int i = 0; i < 12 && !field.answers.isEmpty(); ++i)
            lines += quoted(field.answers.value(i));
    }
    return lines + QStringList{"RW", "VER=" + quoted("1.1.0")};
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

QByteArray bitmap(const QImage& picture)
{
    QBuffer buffer;
    picture.save(&buffer, "BMP");
    return buffer.data();
}

QByteArray soundOf(const SampleCard& card)
{
    return waveBytes(card["Sound"] == "call" ? callOf(monsterOf(card)) : voiceOf(card["Sound"]));
}

void removeOldCards(QDir folder)
{
    for (const QString& name : folder.entryList({"*.tcd", "*.bmp", "*.snd"}, QDir::Files))
        folder.remove(name);
}

} // namespace

void writeSampleDatabase(const CardTable& table, const QString& svgFolder, const QString& outFolder)
{
    const QDir folder(QDir(outFolder).filePath(table.title));
    if (!folder.mkpath("."))
        throw std::runtime_error("can't make " + folder.path().toStdString());
    removeOldCards(folder);
    writeLines(folder.filePath("db-info.tdb"), description(table.fields));
    for (const SampleCard& card : table.cards) {
        const QString base = folder.filePath(cardIdOf(table.title, card[table.fields[0].name]));
        QStringList record{quoted("00000000")};
        for (const SampleField& field : table.fields)
            record += quoted(card[field.name]);
        writeLines(base + ".tcd", record);
        writeFile(base + ".bmp", bitmap(pictureOf(card, svgFolder)));
        if (!card["Sound"].isEmpty())
            writeFile(base + ".snd", soundOf(card));
    }
}
