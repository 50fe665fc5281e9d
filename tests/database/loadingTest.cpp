#include "database/loading.h"

#include "core/mainView.h"
#include "support/database.h"

using namespace Qt::StringLiterals;

namespace {

class Loading : public Fresh {
protected:
    Loading()
    {
        mainView.redrawBoard = [this] { ++boardDrawn; };
    }

    void open(int cards) { session.dbPath = writeDatabase(u"db"_s, cards); }
    QString path(const QString& name) const { return session.dbPath + u'/' + name; }

    /// The colour in the middle of the card's face, which shows the picture and no label.
    static QColor faceColour(int card)
    {
        const QImage& face = session.box[card].picture;
        return face.pixelColor(face.width() / 2, face.height() - 5);
    }

    int boardDrawn = 0;
};

} // namespace

TEST_F(Loading, ReadsEveryCardInTheOrderOfTheNames)
{
    open(2);
    writeCard(session.dbPath, u"abcdefghXX"_s, u"long"_s, u"01230085"_s, qRgb(0, 9, 0));
    putFile(path(u".hidden.tcd"_s), "\"\"\r\n");
    QDir(session.dbPath).mkdir(u"FOLDER.tcd"_s);
    loadAllCards();
    EXPECT_EQ(session.numCards, 3);
    EXPECT_EQ(session.cardId[1], cardName(1));
    EXPECT_EQ(session.cardId[2], u"abcdefgh"_s) << "the first eight characters, sorted as capitals";
    EXPECT_EQ(session.cardId[3], cardName(2));
    EXPECT_EQ(session.cardValue[3][1], u"card 2"_s);
    EXPECT_EQ(session.box[3].tooltip, u"card 2"_s);
    EXPECT_EQ(faceColour(3), QColor(2, 0, 0));
    EXPECT_TRUE(session.window.title.contains(u"3 Card(s)]"_s));
}

TEST_F(Loading, PlacesNewCardsAndLeavesThoseInView)
{
    open(2);
    writeCard(session.dbPath, cardName(2), u"placed"_s, u"03000200"_s, 0);
    loadAllCards();
    EXPECT_GE(session.box[1].top, 100) << "without a place it goes to a free one";
    EXPECT_TRUE(session.board.SelectBox.visible);
    EXPECT_EQ(session.box[2].left, 300);
    session.box[2].left = 555;
    loadAllCards();
    EXPECT_EQ(session.box[2].left, 555);
}

TEST_F(Loading, AReloadEndsAsAFullLoadWhateverWasPassedOver)
{
    open(3);
    loadAllCards();
    boardDrawn = 0;
    session.editor.Picture1.image = {};
    loadAllCards();
    EXPECT_EQ(boardDrawn, 0) << "nothing has changed";
    EXPECT_EQ(session.editor.Picture1.image.pixelColor(5, 5), QColor(3, 0, 0));

    writeCard(session.dbPath, cardName(2), u"card 2"_s, u"00000000"_s, qRgb(0, 0, 200));
    loadAllCards();
    EXPECT_EQ(boardDrawn, 1);
    EXPECT_EQ(faceColour(2), QColor(0, 0, 200));
    EXPECT_EQ(session.editor.Picture1.image.pixelColor(5, 5), QColor(3, 0, 0));

    session.options.ColText = u"255"_s;
    session.box[1].picture = {};
    loadAllCards();
    EXPECT_FALSE(session.box[1].picture.isNull());
    EXPECT_EQ(boardDrawn, 2);

    const QString description = path(u"db-info.tdb"_s);
    putFile(description, bytesOf(description).replace("none", ""));
    loadAllCards();
    EXPECT_EQ(boardDrawn, 2) << "no background instead of none";
    putFile(description, bytesOf(description).replace("\"\"", '"' + cardName(1).toLatin1() + ".bmp\""));
    loadAllCards();
    EXPECT_EQ(boardDrawn, 3) << "a background has come";

    desktop.screen.pixelRatio = [] { return 2.0; }; // the window has moved to a screen of double density
    loadAllCards();
    EXPECT_EQ(session.box[1].picture.width(), 2 * session.editor.shrinkdummy.width);
}

TEST_F(Loading, AMissingPictureIsToldAtEachLoadAndTheFaceShowsTheOneBefore)
{
    open(3);
    loadAllCards();
    QFile::remove(path(cardName(2) + u".bmp"_s));
    putFile(path(cardName(3) + u".bmp"_s), "no bitmap");
    for (int load = 1; load <= 2; ++load) {
        recorded.messages.clear();
        loadAllCards();
        EXPECT_THAT(recorded.messages,
                    testing::ElementsAre(u"Error|File not found"_s, u"Error|Invalid picture"_s));
        EXPECT_EQ(faceColour(2), QColor(1, 0, 0));
        EXPECT_EQ(faceColour(3), QColor(1, 0, 0));
    }
}

TEST_F(Loading, AHundredRecordsLoadAndOneMoreIsAnError)
{
    open(0);
    session.cardSize = 2;
    putFile(path(u"db-info.tdb"_s),
            " 1 \r\n 2 \r\n\"none\"\r\n\"Name\"\r\n\"Abc\"\r\nFalse\r\nRW\r\nVER=\"1.1.0\"\r\n");
    for (int i = 0; i < 100; ++i)
        putFile(path(u"CARD%1.tcd"_s.arg(i, 4, 10, '0'_L1)), "\"00000000\"\r\n\"x\"\r\n");
    loadAllCards();
    EXPECT_EQ(session.numCards, 100);
    EXPECT_EQ(session.cardValue[100][1], u"x"_s);
    putFile(path(u"CARD9999.tcd"_s), "\"00000000\"\r\n\"x\"\r\n");
    EXPECT_EQ(errorOf(loadAllCards), outOfRange);
}
