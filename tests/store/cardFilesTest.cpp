#include "store/cardFiles.h"

#include "core/session.h"
#include "platform/pictureFile.h"
#include "support/files.h"

class CardFiles : public Fresh {
protected:
    CardFiles()
    {
        session.dbPath = testFolder().chopped(1);
        session.numFields = 3;
        session.cardId[1] = QStringLiteral("CARDAAAA");
    }

    static QString file(const char* name) { return inTestFolder(QString::fromLatin1(name)); }

    static QStringList values()
    {
        QStringList found;
        for (int f = 0; f <= 3; ++f)
            found.append(session.cardValue[1][f]);
        return found;
    }
};

TEST_F(CardFiles, ARecordIsWrittenFromTheEditorsBoxes)
{
    session.cardValue[1][0] = QStringLiteral("01230085");
    session.DataBox[1] = QStringLiteral("Größe, m");
    session.DataBox[3] = QStringLiteral("7");
    session.DataBox[4] = QStringLiteral("beyond the fields");

    saveCardValues(1);

    EXPECT_EQ(bytesOf(file("CARDAAAA.tcd")), QByteArray("\"01230085\"\r\n\"Gr\xF6\xDF"
                                                        "e, m\"\r\n\"\"\r\n\"7\"\r\n"));
    EXPECT_EQ(session.box[1].tooltip, QStringLiteral("Größe, m"));
    EXPECT_TRUE(session.cardValue[1][4].isEmpty());
    EXPECT_TRUE(recorded.messages.isEmpty());

    session.cardValue[1] = {};
    loadCardValues(1);
    EXPECT_EQ(values(), QStringList({"01230085", "Größe, m", "", "7"}));
}

TEST_F(CardFiles, WhatARecordLacksRepeatsTheLastValueRead)
{
    const std::pair<QByteArray, QStringList> cases[] = {
        {"\"00100020\"\r\n\"Rex\"\r\n", {"00100020", "Rex", "Rex", "Rex"}},
        {"", {"", "", "", ""}},
        {"\"00100020", {"00100020", "00100020", "00100020", "00100020"}},
        {"a,b,c,d,e", {"a", "b", "c", "d"}},
        {QByteArray("\x00\xFF\r\n\x81", 5),
         {QStringLiteral("\0ÿ").left(0) + QChar(0) + QChar(0xFF), "\u0081", "\u0081", "\u0081"}},
        {QByteArray(5 << 20, 'x'), {"", "", "", ""}},
    };
    for (const auto& [bytes, expected] : cases) {
        putFile(file("CARDAAAA.tcd"), bytes);
        session.cardValue[1][2] = QStringLiteral("former");
        loadCardValues(1);
        EXPECT_EQ(values(), expected) << bytes.left(20).toStdString();
    }
    QFile::remove(file("CARDAAAA.tcd"));
    loadCardValues(1);
    EXPECT_EQ(values(), QStringList({"", "", "", ""}));
    EXPECT_TRUE(recorded.messages.isEmpty()) << "a record loads silently";
}

TEST_F(CardFiles, AreFoundAndReplacedWhateverTheirCase)
{
    putFile(file("CardAaaa.TCD"), "\"00100020\",\"Rex\",\"\",\"\"");
    loadCardValues(1);
    session.DataBox[1] = QStringLiteral("Mia");
    saveCardValues(1);
    EXPECT_EQ(QDir(testFolder()).entryList(QDir::Files), QStringList(QStringLiteral("CardAaaa.TCD")));
    EXPECT_EQ(bytesOf(file("CardAaaa.TCD")), QByteArray("\"00100020\"\r\n\"Mia\"\r\n\"\"\r\n\"\"\r\n"));
}

TEST_F(CardFiles, AFailedSaveLeavesTheTooltip)
{
    session.box[1].tooltip = QStringLiteral("before");
    session.DataBox[1] = QStringLiteral("after");
    session.dbPath = file("gone");
    saveCardValues(1);
    EXPECT_EQ(session.box[1].tooltip, QStringLiteral("before"));
    EXPECT_EQ(session.cardValue[1][1], QStringLiteral("after"));
}

TEST_F(CardFiles, ThePictureIsWhatTheEditorShows)
{
    QImage larger(200, 60, QImage::Format_RGB32);
    larger.fill(Qt::red);
    session.Picture1.image = larger;
    saveCardPicture(1);
    session.Picture1.image = {};
    loadCardPicture(1);
    const QImage loaded = session.Picture1.image;
    EXPECT_EQ(loaded.size(), QSize(159, 120)) << "cut at the control's edges";
    EXPECT_EQ(loaded.pixelColor(158, 59), QColor(Qt::red));
    EXPECT_EQ(loaded.pixelColor(0, 60), QColor(Qt::white));
}

TEST_F(CardFiles, DeletingTheAnswersTouchesNothingElse)
{
    putFile(file("ANSWERS.TXT"), "x");
    putFile(file("Questions.txt"), "x");
    deleteAnswers();
    deleteAnswers();
    EXPECT_EQ(QDir(testFolder()).entryList(QDir::Files), QStringList(QStringLiteral("Questions.txt")));
}
