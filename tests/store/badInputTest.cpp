// A database's folder in which nothing is as it should be: everything is told or passed over, and the program
// goes on.
#include "core/session.h"
#include "store/cardFiles.h"
#include "store/loading.h"
#include "support/database.h"

#include <QDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using BadInput = Fresh;

TEST_F(BadInput, AFolderOfRubbishOpensWithMessages)
{
    session.dbPath = writeDatabase(QStringLiteral("db"), 5);
    const QString folder = session.dbPath + QLatin1Char('/');
    const auto file = [&](int card, const char* ending) -> QString {
        return folder + cardName(card) + QLatin1String(ending);
    };
    putFile(folder + QStringLiteral("db-info.tdb"), QByteArray(1 << 20, '\xFF'));
    putFile(file(1, ".tcd"), QByteArray(1 << 20, '\0'));
    putFile(file(1, ".bmp"), QByteArray());
    putFile(file(2, ".tcd"), "\xFF\xFE\"\0\r\0\n\0");
    putFile(file(2, ".bmp"), QByteArray("BM").leftJustified(1 << 20, '\xFF'));
    ASSERT_EQ(truncate(QFile::encodeName(file(3, ".tcd")).constData(), off_t(5) << 30), 0);
    ASSERT_EQ(truncate(QFile::encodeName(file(3, ".bmp")).constData(), off_t(5) << 30), 0);
    QFile::remove(file(4, ".bmp"));
    ASSERT_EQ(mkfifo(QFile::encodeName(file(4, ".bmp")).constData(), 0600), 0);
    QDir(folder).mkdir(cardName(5) + QStringLiteral(".snd"));
    // A name that is no text in this system's encoding, as old memory sticks have them.
    const QByteArray oddName = QFile::encodeName(folder) + "z\xE4r.tcd";
    const int odd = open(oddName.constData(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(odd, 0);
    close(odd);

    loadAllCards();
    EXPECT_EQ(session.numCards, 6);
    EXPECT_EQ(session.numFields, 3);
    EXPECT_EQ(session.cardValue[5][1], QStringLiteral("card 5"));
    EXPECT_TRUE(session.cardValue[3][1].isEmpty());
    EXPECT_FALSE(session.box[5].picture.isNull());
    EXPECT_FALSE(cardHasSound(5));
    const auto count = [](const char* text) {
        return recorded.messages.count(QLatin1String("Error|") + QLatin1String(text));
    };
    EXPECT_EQ(count("Invalid picture"), 2);
    EXPECT_EQ(count("Out of memory"), 1);
    EXPECT_EQ(count("Path/File access error"), 1);
    EXPECT_EQ(count("File not found"), 1) << "the picture of the odd name";
    EXPECT_EQ(recorded.beeps, recorded.messages.size());

    // The test folder's own end can't spell this name.
    EXPECT_EQ(unlink(oddName.constData()), 0);
}
