#include "store/cardFiles.h"

#include "core/session.h"
#include "platform/pictureFile.h"
#include "store/cardSaving.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

class CardFiles : public Fresh {
protected:
    CardFiles()
    {
        session.dbPath = testFolder().chopped(1);
        session.numFields = 3;
        session.cardId[1] = u"CARDAAAA"_s;
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

TEST_F(CardFiles, WhatARecordLacksRepeatsTheLastValueRead)
{
    const std::pair<QByteArray, QStringList> cases[] = {
        {"\"00100020\"\r\n\"Rex\"\r\n", {"00100020", "Rex", "Rex", "Rex"}},
        {"", {"", "", "", ""}},
        {"\"00100020", {"00100020", "00100020", "00100020", "00100020"}},
        {"a,b,c,d,e", {"a", "b", "c", "d"}},
        {QByteArray("\x00\xFF\r\n\x81", 5),
         {u"\0ÿ"_s.left(0) + QChar(0) + QChar(0xFF), "\u0081", "\u0081", "\u0081"}},
        {QByteArray(5 << 20, 'x'), {"", "", "", ""}},
    };
    for (const auto& [bytes, expected] : cases) {
        putFile(file("CARDAAAA.tcd"), bytes);
        session.cardValue[1][2] = u"former"_s;
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
    session.editor.DataBox[1] = u"Mia"_s;
    saveCardValues(1);
    EXPECT_EQ(QDir(testFolder()).entryList(QDir::Files), QStringList(u"CardAaaa.TCD"_s));
    EXPECT_EQ(bytesOf(file("CardAaaa.TCD")), QByteArray("\"00100020\"\r\n\"Mia\"\r\n\"\"\r\n\"\"\r\n"));
}

TEST_F(CardFiles, ThePictureIsWhatTheEditorShows)
{
    const QImage larger = plain({200, 60}, Qt::red);
    session.editor.Picture1.image = larger;
    saveCardPicture(1);
    session.editor.Picture1.image = {};
    loadCardPicture(1);
    const QImage loaded = session.editor.Picture1.image;
    EXPECT_EQ(loaded.size(), QSize(159, 120)) << "cut at the control's edges";
    EXPECT_EQ(loaded.pixelColor(158, 59), QColor(Qt::red));
    EXPECT_EQ(loaded.pixelColor(0, 60), QColor(Qt::white));
}

TEST_F(CardFiles, OfOneCardGoTogetherWhateverTheirCapitals)
{
    for (const char* name : {"cardaaaa.TCD", "CARDAAAA.bmp", "Cardaaaa.Snd", "CARDAAAB.tcd", "CARDAAAA.txt"})
        putFile(file(name), "x");
    EXPECT_EQ(cardFilesOfOneRecord(cardIdOf(u"CARDAAAA older.tcd"_s), {}),
              QStringList({file("cardaaaa.TCD"), file("CARDAAAA.bmp"), file("Cardaaaa.Snd")}));
}

TEST_F(CardFiles, APhotoInThePlaceOfTheBitmapIsShownWholeWhateverItsSize)
{
    for (const QSize size :
         {QSize(400, 300), QSize(12000, 9000)}) { // Qt refuses to decode the second one whole
        QImage photo(size, QImage::Format_RGB888);
        photo.fill(Qt::red);
        for (int y = 0; y < size.height(); ++y)
            std::fill_n(photo.scanLine(y), size.width() / 2 * 3, uchar(0));
        EXPECT_TRUE(photo.save(file("CARDAAAA.bmp"), "JPG"));
        photo = {};
        loadCardPicture(1);
        const QImage shown = session.editor.Picture1.image;
        ASSERT_EQ(shown.size(), QSize(159, 120));
        EXPECT_LT(QColor(shown.pixel(70, 60)).red(), 30);
        EXPECT_GT(QColor(shown.pixel(90, 60)).red(), 220);
        EXPECT_TRUE(recorded.messages.isEmpty());
    }
}
