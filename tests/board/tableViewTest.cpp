#include "board/tableView.h"

#include "core/mainView.h"
#include "support/cards.h"
#include "support/files.h"

#include <QDir>

#include <map>

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TableView : public Fresh {
protected:
    TableView()
    {
        session.dbPath = testFolder().chopped(1);
        session.numFields = 2;
        session.fieldName[1] = u"Name"_s;
        session.fieldName[2] = u"Legs"_s;
        session.table.Grid.width = 600;
        session.table.Grid.height = 500;
        session.table.Grid.headerHeight = 30;
    }

    /// Twelve cards c1..c12 with records to be written.
    static void twelveCards()
    {
        QStringList names;
        for (int i = 1; i <= 12; ++i)
            names.append(u"c%1"_s.arg(i));
        cards(names);
        for (int i = 1; i <= 12; ++i) {
            session.cardValue[i][2] = QString::number(i * 10);
            session.cardId[i] = u"AAAAAA%1"_s.arg(i, 2, 10, '0'_L1);
        }
    }

    static QString text(int row, int column) { return session.table.Grid.text[row][column]; }

    static QImage picture(QRgb colour)
    {
        QImage image(20, 40, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }

    static QString pictureFile(int card) { return session.dbPath + u'/' + session.cardId[card] + u".bmp"_s; }
};

} // namespace

TEST_F(TableView, LaysOutRowsForTheHeightAndColumnsForTheFields)
{
    twelveCards();
    layoutTable();
    EXPECT_EQ(session.table.Grid.rows, 8); // Int((500 - 12 - 30) / 60) + 1
    EXPECT_THAT(session.table.Grid.columnWidths, ElementsAre(40, 80, 236, 236));
    EXPECT_EQ(session.table.gridScroll.max, 11); // then the last card stands in the first row
    EXPECT_EQ(session.table.gridScroll.largeChange, 6);
    EXPECT_TRUE(session.table.panel.visible);
}

TEST_F(TableView, ShowsAWindowOfCardsAndEmptyRowsPastTheLast)
{
    twelveCards();
    layoutTable();
    fillTable();
    EXPECT_EQ(text(0, 2), u"Name"_s);
    EXPECT_EQ(text(1, 0), u"1"_s);
    EXPECT_EQ(text(7, 3), u"70"_s);

    scrollTableTo(11);
    EXPECT_EQ(text(1, 2), u"c12"_s);
    EXPECT_EQ(text(2, 0), QString());
    EXPECT_EQ(text(2, 2), QString());
    scrollTableTo(500);
    EXPECT_EQ(session.table.gridScroll.value, 11);
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(TableView, AStoredCellReachesTheRecordAndANewLabelTheFace)
{
    twelveCards();
    layoutTable();
    fillTable();
    session.cardSize = 2; // a strip needs no picture file
    session.selectedCard = 3;
    session.table.gridEditRow = 3;
    session.table.gridEditCol = 2;
    session.table.editBox.visible = true;
    session.table.editBoxText = u"new"_s;
    scrollTableTo(1);

    EXPECT_FALSE(session.table.editBox.visible);
    EXPECT_EQ(text(2, 2), u"new"_s);
    EXPECT_EQ(session.box[3].tooltip, u"new"_s);
    EXPECT_FALSE(session.box[3].picture.isNull());
    EXPECT_EQ(bytesOf(inTestFolder(u"AAAAAA03.tcd"_s)), "\"\"\r\n\"new\"\r\n\"30\"\r\n");
}

TEST_F(TableView, EnterWalksThroughTheFieldsTheRowsAndThePages)
{
    twelveCards();
    layoutTable();
    session.table.gridEditRow = 1;
    session.table.gridEditCol = 2;
    const auto place = [] { return std::pair(session.table.gridEditRow, session.table.gridEditCol); };
    moveToNextCell();
    EXPECT_EQ(place(), std::pair(1, 3));
    moveToNextCell();
    EXPECT_EQ(place(), std::pair(2, 2));
    session.table.gridEditRow = session.table.Grid.rows - 1;
    session.table.gridEditCol = 3;
    moveToNextCell();
    EXPECT_EQ(place(), std::pair(2, 2));
    EXPECT_EQ(session.table.gridScroll.value, 6);
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
    const QString path = testFolder() + u"red.png"_s;
    ASSERT_TRUE(picture(qRgb(255, 0, 0)).save(path));
    dropPictureOnRow(3, path);
    EXPECT_EQ(session.selectedCard, 5);
    const QImage saved(pictureFile(5));
    EXPECT_EQ(saved.size(), QSize(159, 120));
    EXPECT_EQ(saved.pixelColor(158, 119), QColor(255, 0, 0));
    EXPECT_FALSE(session.table.Grid.face[3].isNull());
}

TEST_F(TableView, WhatCannotBeLoadedLeavesTheOldPicture)
{
    twelveCards();
    layoutTable();
    fillTable();
    const QString garbage = inTestFolder(u"notes.txt"_s);
    putFile(garbage, "no picture");
    const QString huge = inTestFolder(u"huge.png"_s);
    ASSERT_TRUE(QImage(20000, 20000, QImage::Format_Mono).save(huge));
    ASSERT_TRUE(picture(qRgb(0, 0, 255)).save(pictureFile(1)));
    const QByteArray before = bytesOf(pictureFile(1));
    for (const QString& path : {garbage, huge, QString(), testFolder(), inTestFolder(u"gone.bmp"_s)}) {
        recorded.messages.clear();
        dropPictureOnRow(1, path);
        EXPECT_EQ(recorded.messages.size(), 1) << path.toStdString();
    }
    EXPECT_EQ(bytesOf(pictureFile(1)), before);
    EXPECT_EQ(session.selectedCard, 0);
}

TEST_F(TableView, ADropGoesToTheCardThatTheRowShowedOrNowhere)
{
    twelveCards();
    layoutTable();
    fillTable();
    for (int card = 1; card <= 12; ++card)
        ASSERT_TRUE(picture(qRgb(0, 0, 255)).save(pictureFile(card)));
    const QString path = inTestFolder(u"red.png"_s);
    ASSERT_TRUE(picture(qRgb(255, 0, 0)).save(path));
    const auto redCards = [] {
        QStringList red;
        for (const QString& name : QDir(session.dbPath).entryList({u"*.bmp"_s}))
            if (QImage(session.dbPath + u'/' + name).pixelColor(0, 0) == Qt::red)
                red.append(name.first(8));
        return red;
    };
    const QString first = session.cardId[1];
    const QString third = session.cardId[3];
    for (int card = 1; card < 12; ++card) // another workstation has deleted the first card
        session.cardId[card] = session.cardId[card + 1];
    session.numCards = 11;
    dropPictureOnRow(1, path);
    EXPECT_THAT(redCards(), IsEmpty()) << first.toStdString();
    dropPictureOnRow(3, path);
    EXPECT_THAT(redCards(), ElementsAre(third));
    EXPECT_EQ(session.selectedCard, 2);

    scrollTableTo(10);
    dropPictureOnRow(2, path); // an empty row
    EXPECT_THAT(redCards(), ElementsAre(third));
    session.numCards = 3;
    refillTable();
    EXPECT_EQ(session.table.gridScroll.value, 2);
    EXPECT_EQ(text(1, 0), u"3"_s);
    EXPECT_EQ(text(2, 0), QString());
}
