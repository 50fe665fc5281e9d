#include "board/tableView.h"

#include "core/mainView.h"
#include "support/cards.h"
#include "support/files.h"

#include <QDir>

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
        twelveCards();
        layoutTable();
        fillTable();
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

    static QString pictureFile(int card) { return session.dbPath + u'/' + session.cardId[card] + u".bmp"_s; }
};

} // namespace

TEST_F(TableView, LaysOutRowsForTheHeightAndColumnsForTheFields)
{
    EXPECT_EQ(session.table.Grid.rows, 8); // Int((500 - 12 - 30) / 60) + 1
    EXPECT_THAT(session.table.Grid.columnWidths, ElementsAre(40, 80, 236, 236));
    EXPECT_EQ(session.table.gridScroll.max, 11); // then the last card stands in the first row
    EXPECT_EQ(session.table.gridScroll.largeChange, 6);
    EXPECT_TRUE(session.table.panel.visible);
    EXPECT_EQ(text(0, 2), u"Name"_s);
    EXPECT_EQ(text(7, 3), u"70"_s);
    scrollTableTo(500);
    EXPECT_EQ(session.table.gridScroll.value, 11);
    EXPECT_EQ(text(1, 2), u"c12"_s);
    EXPECT_EQ(text(2, 0) + text(2, 2), QString());
}

TEST_F(TableView, ADropIsTakenInTheFaceColumnOfAWholeRow)
{
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

TEST_F(TableView, WhatCannotBeLoadedLeavesTheOldPicture)
{
    const QString garbage = inTestFolder(u"notes.txt"_s);
    putFile(garbage, "no picture");
    const QString huge = inTestFolder(u"huge.png"_s);
    ASSERT_TRUE(QImage(20000, 20000, QImage::Format_Mono).save(huge));
    ASSERT_TRUE(plain({20, 40}, Qt::blue).save(pictureFile(1)));
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
    for (int card = 1; card <= 12; ++card)
        ASSERT_TRUE(plain({20, 40}, Qt::blue).save(pictureFile(card)));
    const QString path = inTestFolder(u"red.png"_s);
    ASSERT_TRUE(plain({20, 40}, Qt::red).save(path));
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
    EXPECT_EQ(QImage(session.dbPath + u'/' + third + u".bmp"_s).size(), QSize(159, 120)) << "stretched";
    EXPECT_FALSE(session.table.Grid.face[3].isNull());

    scrollTableTo(10);
    dropPictureOnRow(2, path); // an empty row
    EXPECT_THAT(redCards(), ElementsAre(third));
    session.numCards = 3;
    refillTable();
    EXPECT_EQ(session.table.gridScroll.value, 2);
    EXPECT_EQ(text(1, 0), u"3"_s);
    EXPECT_EQ(text(2, 0), QString());
}
