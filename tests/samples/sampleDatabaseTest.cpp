#include "sampleDatabase.h"

#include "cardPicture.h"

#include "core/session.h"
#include "platform/wave.h"
#include "store/cardFiles.h"
#include "store/descriptionFile.h"
#include "support/files.h"

#include <QDir>
#include <QSet>
#include <QtEndian>

#include <cmath>

using testing::IsEmpty;

namespace {

CardTable tableOf(const char* name) { return readCardTable(SAMPLES_FOLDER "/tables/" + QString(name)); }

void make(const CardTable& table, const QString& folder)
{
    writeSampleDatabase(table, QDir(SAMPLES_FOLDER), folder);
    session = {};
    session.dbPath = QDir(folder).filePath(table.title);
}

QStringList filesOf(const QString& pattern) { return QDir(session.dbPath).entryList({pattern}, QDir::Files); }

void expectFields(const CardTable& table)
{
    ASSERT_EQ(session.numFields, table.fields.size());
    for (int f = 1; f <= session.numFields; ++f) {
        const SampleField& field = table.fields[f - 1];
        EXPECT_EQ(session.fieldName[f], field.name);
        EXPECT_EQ(session.fieldType[f], field.isNumber ? "123" : "Abc");
        EXPECT_EQ(session.fieldUseList[f], !field.answers.isEmpty());
        for (int item = 1; item <= 12; ++item)
            EXPECT_EQ(session.fieldListItem[f][item], field.answers.value(item - 1));
    }
}

/// The table's card for a record of the session.
SampleCard cardOf(const CardTable& table)
{
    for (const SampleCard& card : table.cards)
        if (card[table.fields[0].name] == session.cardValue[1][1])
            return card;
    return {};
}

void expectSound(const QString& path)
{
    const QByteArray file = bytesOf(path);
    const Wave wave = readWave(file);
    EXPECT_EQ(wave.sampleRate, 22050);
    EXPECT_EQ(wave.channels, 1);
    ASSERT_EQ(wave.bits, 16);
    EXPECT_LT(file.size(), 22050 * 2 * 2) << "two seconds at most";
    int loudest = 0;
    for (qsizetype i = 0; i < wave.samples.size(); i += 2)
        loudest = std::max(loudest, std::abs(int(qFromLittleEndian<qint16>(wave.samples.data() + i))));
    EXPECT_NEAR(loudest, 0.7 * 32767, 700) << path.toStdString();
}

struct SampleDatabases : Fresh {};

} // namespace

TEST_F(SampleDatabases, ReadBackAsTheirTablesTell)
{
    const struct {
        const char* table;
        int cards, fields, sounds;
    } databases[] = {{"musical-instruments.txt", 8, 6, 8},
                     {"amazing-animals.txt", 24, 9, 8},
                     {"little-monsters.txt", 60, 9, 22}};
    for (const auto& database : databases) {
        SCOPED_TRACE(database.table);
        const CardTable table = tableOf(database.table);
        make(table, testFolder());
        readDbInfo();
        EXPECT_EQ(session.dbVersion, "1.1.0");
        EXPECT_EQ(session.databaseStatus, "RW");
        EXPECT_EQ(session.cardSize, 1);
        EXPECT_EQ(session.numFields, database.fields);
        expectFields(table);
        EXPECT_EQ(filesOf("*.bmp").size(), database.cards);
        EXPECT_EQ(filesOf("*.snd").size(), database.sounds);

        QSet<QString> names;
        QList<QImage> pictures;
        for (const QString& file : filesOf("*.tcd")) {
            session.cardId[1] = file.left(8);
            loadCardValues(1);
            EXPECT_EQ(session.cardValue[1][0], "00000000");
            const SampleCard card = cardOf(table);
            for (int f = 1; f <= session.numFields; ++f)
                EXPECT_EQ(session.cardValue[1][f], card[session.fieldName[f]]);
            names.insert(session.cardValue[1][1]);

            loadCardPicture(1);
            EXPECT_EQ(session.editor.Picture1.image.size(), QSize(159, 120));
            EXPECT_FALSE(pictures.contains(session.editor.Picture1.image))
                << session.cardValue[1][1].toStdString();
            pictures.append(session.editor.Picture1.image);
            EXPECT_EQ(cardHasSound(1), !card["Sound"].isEmpty());
            if (cardHasSound(1))
                expectSound(QDir(session.dbPath).filePath(session.cardId[1] + ".snd"));
        }
        EXPECT_EQ(names.size(), database.cards);
    }
    EXPECT_THAT(recorded.messages, IsEmpty());
}

TEST_F(SampleDatabases, AreTheSameInEveryRunAndKeepNoCardThatLeftTheTable)
{
    CardTable table = tableOf("musical-instruments.txt");
    make(table, inTestFolder("one"));
    const QString first = session.dbPath;
    const QStringList files = filesOf("*");
    make(table, inTestFolder("two"));
    EXPECT_EQ(filesOf("*"), files);
    for (const QString& file : files)
        EXPECT_EQ(bytesOf(QDir(session.dbPath).filePath(file)), bytesOf(QDir(first).filePath(file)))
            << file.toStdString();

    table.cards.removeLast();
    make(table, inTestFolder("two"));
    EXPECT_EQ(filesOf("*.tcd").size(), 7);
    EXPECT_TRUE(QSet<QString>(files.begin(), files.end()).contains(filesOf("*.tcd").last()));
}

TEST_F(SampleDatabases, HaveGroundsOnWhichTheCaptionsCanBeRead)
{
    const QColor caption("#1A2F8F"); // as scripts/place-samples sets it
    const auto brightness = [](const QColor& colour) {
        const auto part = [](double v) {
            return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const QDir grounds(SAMPLES_FOLDER "/grounds");
    for (const QString& name : grounds.entryList({"*.svg"})) {
        const QImage ground = drawSvgs({grounds.filePath(name)}, pictureSize);
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < ground.width(); ++x)
                ASSERT_GE((brightness(ground.pixelColor(x, y)) + 0.05) / (brightness(caption) + 0.05), 4.5)
                    << name.toStdString() << " at " << x << ", " << y;
    }
}
