// A database's folder in which every file is damaged: each fault is reported or ignored, and the program goes
// on.
#include "core/session.h"
#include "database/loading.h"
#include "store/cardFiles.h"
#include "support/database.h"

#include <QDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

using BadInput = Fresh;

TEST_F(BadInput, AFolderOfRubbishOpensWithMessages)
{
    session.dbPath = writeDatabase(u"db"_s, 5);
    const QString folder = session.dbPath + u'/';
    const auto file = [&](int card, const char* ending) -> QString {
        return folder + cardName(card) + QLatin1String(ending);
    };
    putFile(folder + u"db-info.tdb"_s, QByteArray(1 << 20, '\xFF'));
    putFile(file(1, ".tcd"), QByteArray(1 << 20, '\0'));
    putFile(file(1, ".bmp"), QByteArray());
    putFile(file(2, ".tcd"), "\xFF\xFE\"\0\r\0\n\0");
    putFile(file(2, ".bmp"), QByteArray("BM").leftJustified(1 << 20, '\xFF'));
    ASSERT_EQ(truncate(QFile::encodeName(file(3, ".tcd")).constData(), off_t(5) << 30), 0);
    ASSERT_EQ(truncate(QFile::encodeName(file(3, ".bmp")).constData(), off_t(5) << 30), 0);
    QFile::remove(file(4, ".bmp"));
    ASSERT_EQ(mkfifo(QFile::encodeName(file(4, ".bmp")).constData(), 0600), 0);
    QDir(folder).mkdir(cardName(5) + u".snd"_s);
    // A name that is invalid in this system's encoding, as on old memory sticks.
    const QByteArray oddName = QFile::encodeName(folder) + "z\xE4r.tcd";
    const int odd = open(oddName.constData(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(odd, 0);
    close(odd);

    loadAllCards();
    EXPECT_EQ(session.numCards, 6);
    EXPECT_EQ(session.numFields, 3);
    EXPECT_EQ(session.cardValue[5][1], u"card 5"_s);
    EXPECT_TRUE(session.cardValue[3][1].isEmpty());
    EXPECT_FALSE(session.box[5].picture.isNull());
    EXPECT_FALSE(cardHasSound(5));
    const auto count = [](const char* text) {
        return recorded.messages.count("Error|"_L1 + QLatin1String(text));
    };
    EXPECT_EQ(count("Invalid picture"), 2);
    EXPECT_EQ(count("Out of memory"), 1);
    EXPECT_EQ(count("Path/File access error"), 1);
    EXPECT_EQ(count("File not found"), 1) << "the picture of the odd name";
    EXPECT_EQ(recorded.beeps, recorded.messages.size());

    // QTemporaryDir can't remove a file of this name.
    EXPECT_EQ(unlink(oddName.constData()), 0);
}
