// Two programs in one folder: no reader sees half a file, and no setting is lost.
#include "faults/children.h"
#include "faults/effort.h"
#include "faults/writers.h"

#include "core/session.h"
#include "store/cardFiles.h"
#include "store/cardSaving.h"
#include "store/descriptionFile.h"
#include "store/keptVersions.h"
#include "store/settings.h"
#include "support/files.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>

#include <iostream>

using namespace Qt::StringLiterals;

namespace {

/// All values of a record and a description are this text, and a picture has this single colour.
void writeAll(const QString& token, uint colour)
{
    session.cardValue[1][0] = token;
    for (int f = 1; f <= session.numFields; ++f) {
        session.editor.DataBox[f] = token;
        session.fieldName[f] = token;
    }
    session.editor.Picture1.image = QImage(159, 120, QImage::Format_RGB32);
    session.editor.Picture1.image.fill(colour);
    saveCardValues(1);
    saveCardPicture(1);
    writeDbInfo();
}

/// The work of one of the two programs. Only this program changes its key in the settings.
void work(const QString& key)
{
    const QDeadlineTimer end(effort.seconds * 1000);
    for (int n = 1; n <= 10 || !end.hasExpired(); ++n) {
        const QString number = QString::number(n);
        writeAll(key + number.repeated(n % 50 + 1), uint(n) * 0x050301u);
        writeSetting(settingsFile(), u"Shared"_s, key, number);
        ASSERT_EQ(readSetting(settingsFile(), u"Shared"_s, key, u"lost"_s), number);
        ASSERT_TRUE(recorded.messages.isEmpty())
            << "write " << n << ": " << recorded.messages.first().toStdString();
        if (n == 1)
            tellParent();
    }
}

bool allSame(const QStringList& texts)
{
    return !texts.first().isEmpty() && texts.count(texts.first()) == texts.size();
}

bool hasOneColour(const QImage& picture)
{
    QImage first(picture.size(), picture.format());
    first.fill(picture.pixelColor(0, 0));
    return picture == first;
}

} // namespace

using Sharing = Fresh;

TEST_F(Sharing, AProgramThatMakesRoomAmongTheKeptVersionsDoesntHinderAnother)
{
    useFolder(testFolder().chopped(1));
    const QString record = inTestFolder(u"CARDAAAA.tcd"_s);
    const QString moment = inTestFolder(u".kept/2026-03-09 10.30.05"_s);
    putFile(record, "\"00100020\"");
    Child remover([&moment] {
        tellParent();
        for (;;) {
            QDir().rmdir(moment); // only while it is empty
            QThread::msleep(2);
        }
    });
    remover.waitUntilTold();
    for (int n = 0; n < 300; ++n) {
        ASSERT_EQ(errorOf([&] { keepVersions({record}); }), 0) << "at version " << n;
        const bool kept =
            QFile::exists(moment + u"/CARDAAAA.tcd"_s) || QFile::exists(moment + u" 02/CARDAAAA.tcd"_s);
        ASSERT_TRUE(kept) << "version " << n;
        QDir(inTestFolder(u".kept"_s)).removeRecursively();
    }
}

TEST_F(Sharing, TwoProgramsNeitherTearAFileNorLoseASetting)
{
    useFolder(testFolder().chopped(1));
    writeAll(u"start"_s, 0xFFFFFF);
    Child first([] { work(u"one"_s); });
    Child second([] { work(u"two"_s); });
    first.waitUntilTold();
    second.waitUntilTold();

    int reads = 0;
    int changes = 0;
    QString lastRead;
    for (const QDeadlineTimer end(effort.seconds * 1000 - 500); !end.hasExpired(); ++reads) {
        loadCardValues(1);
        readDbInfo();
        loadCardPicture(1);
        const CardFields& card = session.cardValue[1];
        ASSERT_TRUE(allSame({card[0], card[1], card[2], card[3]})) << card[1].toStdString();
        ASSERT_TRUE(allSame({session.fieldName[1], session.fieldName[2], session.fieldName[3]}));
        ASSERT_TRUE(hasOneColour(session.editor.Picture1.image));
        for (const char* key : {"one", "two"})
            ASSERT_GT(readSetting(settingsFile(), u"Shared"_s, QString::fromLatin1(key), {}).toInt(), 0);
        changes += std::exchange(lastRead, card[1]) != card[1];
        ASSERT_TRUE(recorded.messages.isEmpty()) << recorded.messages.first().toStdString();
    }
    EXPECT_TRUE(first.succeeded());
    EXPECT_TRUE(second.succeeded());
    EXPECT_GT(changes, 3);
    std::cout << reads << " readings, " << changes << " of them of a changed record; last settings "
              << bytesOf(settingsFile()).simplified().toStdString() << std::endl;
}
