#include "board/tableView.h"

#include "core/screen.h"
#include "support/cards.h"
#include "support/files.h"

#include <QDir>

#include <map>

using testing::ElementsAre;

namespace {

class TableView : public Fresh {
protected:
    TableView()
    {
        session.dbPath = testFolder().chopped(1);
        session.numFields = 2;
        session.fieldName[1] = QStringLiteral("Name");
        session.fieldName[2] = QStringLiteral("Legs");
        session.Grid.width = 600;
        session.Grid.height = 500;
        session.Grid.headerHeight = 30;
    }

    /// Twelve cards c1..c12 with records to be written.
    static void twelveCards()
    {
        QStringList names;
        for (int i = 1; i <= 12; ++i)
            names.append(QStringLiteral("c%1").arg(i));
        cards(names);
        for (int i = 1; i <= 12; ++i) {
            session.cardValue[i][2] = QString::number(i * 10);
            session.cardId[i] = QStringLiteral("AAAAAA%1").arg(i, 2, 10, QLatin1Char('0'));
        }
    }

    static QString text(int row, int column)
    {
        return session.Grid.text[std::size_t(row)][std::size_t(column)];
    }

    static QImage picture(QRgb colour)
    {
        QImage image(20, 40, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }

    static QString pictureFile(int card)
    {
        return session.dbPath + QLatin1Char('/') + session.cardId[card] + QStringLiteral(".bmp");
    }
};

} // namespace

TEST_F(TableView, LaysOutRowsForTheHeightAndColumnsForTheFields)
{
    twelveCards();
    layoutTable();
    EXPECT_EQ(session.Grid.rows, 8); // Int((500 - 12 - 30) / 60) + 1
    EXPECT_THAT(session.Grid.columnWidths, ElementsAre(40, 80, 236, 236));
    EXPECT_EQ(session.gridScroll.max, 12);
    EXPECT_EQ(session.gridScroll.largeChange, 6);
    EXPECT_TRUE(session.tablePanel.visible);
}

TEST_F(TableView, ShowsAWindowOfCardsAndEmptyRowsPastTheLast)
{
    twelveCards();
    layoutTable();
    fillTable();
    EXPECT_EQ(text(0, 2), QStringLiteral("Name"));
    EXPECT_EQ(text(1, 0), QStringLiteral("1"));
    EXPECT_EQ(text(7, 3), QStringLiteral("70"));

    scrollTableTo(11);
    EXPECT_EQ(text(1, 2), QStringLiteral("c12"));
    EXPECT_EQ(text(2, 0), QString());
    EXPECT_EQ(text(2, 2), QString());
    scrollTableTo(500);
    EXPECT_EQ(session.gridScroll.value, 12);
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(TableView, AStoredCellReachesTheRecordAndANewLabelTheFace)
{
    twelveCards();
    layoutTable();
    fillTable();
    session.cardSize = 2; // a strip needs no picture file
    session.selectedCard = 3;
    session.gridEditRow = 3;
    session.gridEditCol = 2;
    session.editBox.visible = true;
    session.editBoxText = QStringLiteral("new");
    scrollTableTo(1);

    EXPECT_FALSE(session.editBox.visible);
    EXPECT_EQ(text(2, 2), QStringLiteral("new"));
    EXPECT_EQ(session.box[3].tooltip, QStringLiteral("new"));
    EXPECT_FALSE(session.box[3].picture.isNull());
    EXPECT_EQ(bytesOf(inTestFolder(QStringLiteral("AAAAAA03.tcd"))), "\"\"\r\n\"new\"\r\n\"30\"\r\n");
}

TEST_F(TableView, EnterWalksThroughTheFieldsTheRowsAndThePages)
{
    twelveCards();
    layoutTable();
    session.gridEditRow = 1;
    session.gridEditCol = 2;
    const auto place = [] { return std::pair(session.gridEditRow, session.gridEditCol); };
    moveToNextCell();
    EXPECT_EQ(place(), std::pair(1, 3));
    moveToNextCell();
    EXPECT_EQ(place(), std::pair(2, 2));
    session.gridEditRow = session.Grid.rows - 1;
    session.gridEditCol = 3;
    moveToNextCell();
    EXPECT_EQ(place(), std::pair(2, 2));
    EXPECT_EQ(session.gridScroll.value, 6);
}

TEST_F(TableView, ADropIsTakenInTheFaceColumnOfAWholeRow)
{
    twelveCards();
    layoutTable();
    struct Case {
        double x;
        double y;
        int row;
    };
    constexpr Case cases[] = {{41, 31, 1}, {119, 91, 2}, {39, 31, 0}, {120, 31, 0},
                              {60, 29, 0}, {60, 389, 6}, {60, 391, 0}};
    for (const Case& each : cases)
        EXPECT_EQ(rowOfDrop(each.x, each.y), each.row) << each.x << ' ' << each.y;
}

TEST_F(TableView, ADroppedPictureIsStretchedAndSaved)
{
    twelveCards();
    layoutTable();
    fillTable();
    scrollTableTo(2);
    const QString path = testFolder() + QStringLiteral("red.png");
    ASSERT_TRUE(picture(qRgb(255, 0, 0)).save(path));
    dropPictureOnRow(3, path);
    EXPECT_EQ(session.selectedCard, 5);
    const QImage saved(pictureFile(5));
    EXPECT_EQ(saved.size(), QSize(159, 120));
    EXPECT_EQ(saved.pixelColor(158, 119), QColor(255, 0, 0));
    EXPECT_FALSE(session.Grid.face[3].isNull());
}

TEST_F(TableView, WhatCannotBeLoadedLeavesTheOldPicture)
{
    twelveCards();
    layoutTable();
    const QString garbage = inTestFolder(QStringLiteral("notes.txt"));
    putFile(garbage, "no picture");
    const QString huge = inTestFolder(QStringLiteral("huge.png"));
    ASSERT_TRUE(QImage(20000, 20000, QImage::Format_Mono).save(huge));
    ASSERT_TRUE(picture(qRgb(0, 0, 255)).save(pictureFile(1)));
    const QByteArray before = bytesOf(pictureFile(1));
    for (const QString& path :
         {garbage, huge, QString(), testFolder(), inTestFolder(QStringLiteral("gone.bmp"))}) {
        recorded.messages.clear();
        dropPictureOnRow(1, path);
        EXPECT_EQ(recorded.messages.size(), 1) << path.toStdString();
    }
    EXPECT_EQ(bytesOf(pictureFile(1)), before);
    EXPECT_EQ(session.selectedCard, 0);
}

TEST_F(TableView, APictureDroppedPastTheLastCardTouchesNoCardsFiles)
{
    twelveCards();
    layoutTable();
    fillTable();
    for (int card = 1; card <= 12; ++card)
        ASSERT_TRUE(picture(qRgb(0, 0, 255)).save(pictureFile(card)));
    const QString path = inTestFolder(QStringLiteral("red.png"));
    ASSERT_TRUE(picture(qRgb(255, 0, 0)).save(path));
    const auto cardFiles = [] {
        std::map<int, QByteArray> files;
        for (int card = 1; card <= 12; ++card)
            files[card] = bytesOf(pictureFile(card));
        return files;
    };
    const auto before = cardFiles();
    scrollTableTo(12);
    dropPictureOnRow(1, path);
    EXPECT_EQ(cardFiles(), before);
    EXPECT_EQ(session.numCards, 12);
}
