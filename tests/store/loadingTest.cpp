#include "store/loading.h"

#include "core/screen.h"
#include "support/database.h"

namespace {

class Loading : public Fresh {
protected:
    Loading()
    {
        screen.redrawBoard = [this] { ++boardDrawn; };
    }

    void open(int cards) { session.dbPath = writeDatabase(QStringLiteral("db"), cards); }
    QString path(const QString& name) const { return session.dbPath + QLatin1Char('/') + name; }

    /// The colour in the middle of the card's face: its picture, where no label stands.
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
    writeCard(session.dbPath, QStringLiteral("abcdefghXX"), QStringLiteral("long"),
              QStringLiteral("01230085"), qRgb(0, 9, 0));
    putFile(path(QStringLiteral(".hidden.tcd")), "\"\"\r\n");
    QDir(session.dbPath).mkdir(QStringLiteral("FOLDER.tcd"));
    loadAllCards();
    EXPECT_EQ(session.numCards, 3);
    EXPECT_EQ(session.cardId[1], cardName(1));
    EXPECT_EQ(session.cardId[2], QStringLiteral("abcdefgh"))
        << "the first eight characters, sorted as capitals";
    EXPECT_EQ(session.cardId[3], cardName(2));
    EXPECT_EQ(session.cardValue[3][1], QStringLiteral("card 2"));
    EXPECT_EQ(session.box[3].tooltip, QStringLiteral("card 2"));
    EXPECT_EQ(faceColour(3), QColor(2, 0, 0));
    EXPECT_TRUE(session.title.contains(QStringLiteral("3 Card(s)]")));
}

TEST_F(Loading, PlacesNewCardsAndLeavesThoseInView)
{
    open(2);
    writeCard(session.dbPath, cardName(2), QStringLiteral("placed"), QStringLiteral("03000200"), 0);
    loadAllCards();
    EXPECT_GE(session.box[1].top, 100) << "without a place it goes to a free one";
    EXPECT_TRUE(session.SelectBox.visible);
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
    session.Picture1.image = {};
    loadAllCards();
    EXPECT_EQ(boardDrawn, 0) << "nothing has changed";
    EXPECT_EQ(session.Picture1.image.pixelColor(5, 5), QColor(3, 0, 0));

    writeCard(session.dbPath, cardName(2), QStringLiteral("card 2"), QStringLiteral("00000000"),
              qRgb(0, 0, 200));
    loadAllCards();
    EXPECT_EQ(boardDrawn, 1);
    EXPECT_EQ(faceColour(2), QColor(0, 0, 200));
    EXPECT_EQ(session.Picture1.image.pixelColor(5, 5), QColor(3, 0, 0));

    session.ColText = QStringLiteral("255");
    session.box[1].picture = {};
    loadAllCards();
    EXPECT_FALSE(session.box[1].picture.isNull());
    EXPECT_EQ(boardDrawn, 2);

    const QString description = path(QStringLiteral("db-info.tdb"));
    putFile(description, bytesOf(description).replace("none", ""));
    loadAllCards();
    EXPECT_EQ(boardDrawn, 2) << "no background instead of none";
    putFile(description, bytesOf(description).replace("\"\"", '"' + cardName(1).toLatin1() + ".bmp\""));
    loadAllCards();
    EXPECT_EQ(boardDrawn, 3) << "a background has come";

    desktop.pixelRatio = [] { return 2.0; }; // the window has gone to a sharper screen
    loadAllCards();
    EXPECT_EQ(session.box[1].picture.width(), 2 * session.shrinkdummy.width);
}

TEST_F(Loading, AMissingPictureIsToldAtEachLoadAndTheFaceShowsTheOneBefore)
{
    open(3);
    loadAllCards();
    QFile::remove(path(cardName(2) + QStringLiteral(".bmp")));
    putFile(path(cardName(3) + QStringLiteral(".bmp")), "no bitmap");
    for (int load = 1; load <= 2; ++load) {
        recorded.messages.clear();
        loadAllCards();
        EXPECT_THAT(recorded.messages, testing::ElementsAre(QStringLiteral("Error|File not found"),
                                                            QStringLiteral("Error|Invalid picture")));
        EXPECT_EQ(faceColour(2), QColor(1, 0, 0));
        EXPECT_EQ(faceColour(3), QColor(1, 0, 0));
    }
}

TEST_F(Loading, AHundredRecordsLoadAndOneMoreIsAnError)
{
    open(0);
    session.cardSize = 2;
    putFile(path(QStringLiteral("db-info.tdb")),
            " 1 \r\n 2 \r\n\"none\"\r\n\"Name\"\r\n\"Abc\"\r\nFalse\r\nRW\r\nVER=\"1.1.0\"\r\n");
    for (int i = 0; i < 100; ++i)
        putFile(path(QStringLiteral("CARD%1.tcd").arg(i, 4, 10, QLatin1Char('0'))),
                "\"00000000\"\r\n\"x\"\r\n");
    loadAllCards();
    EXPECT_EQ(session.numCards, 100);
    EXPECT_EQ(session.cardValue[100][1], QStringLiteral("x"));
    putFile(path(QStringLiteral("CARD9999.tcd")), "\"00000000\"\r\n\"x\"\r\n");
    EXPECT_EQ(errorOf(loadAllCards), outOfRange);
}
