#include "board/tableView.h"

#include "board/droppedPicture.h"
#include "board/faces.h"
#include "core/screen.h"
#include "core/session.h"
#include "platform/errors.h"
#include "platform/pictureFile.h"
#include "store/cardFiles.h"

#include <algorithm>

namespace {

constexpr int labelColumn = 2; // of field 1: field f stands in column f + 1
constexpr int lowerMargin = 12;
constexpr int rowsBeforeLayout = 10;

void setRows(int rows)
{
    TableGrid& grid = session.Grid;
    grid.rows = rows;
    grid.text.assign(std::size_t(rows), std::vector<QString>(std::size_t(grid.cols)));
    grid.face.assign(std::size_t(rows), {});
}

void setColumns()
{
    TableGrid& grid = session.Grid;
    grid.cols = session.numFields + labelColumn;
    const int valueWidth = (grid.width - faceColumnWidth - 48) / session.numFields;
    grid.columnWidths.assign(std::size_t(grid.cols), std::max(valueWidth, 0));
    grid.columnWidths[0] = numberColumnWidth;
    grid.columnWidths[1] = faceColumnWidth;
}

QString& cell(int row, int column)
{
    TableGrid& grid = session.Grid;
    if (row < 0 || row >= grid.rows || column < 0 || column >= grid.cols)
        throw RuntimeError(outOfRange);
    return grid.text[std::size_t(row)][std::size_t(column)];
}

void fillRow(int row)
{
    const int card = row + session.gridScroll.value;
    const bool shown = card <= session.numCards;
    cell(row, 0) = shown ? QString::number(card) : QString();
    session.Grid.face[std::size_t(row)] = shown ? session.box[card].picture : QImage();
    for (int f = 1; f + 1 < session.Grid.cols; ++f)
        cell(row, f + 1) = shown ? session.cardValue[card][f] : QString();
}

/// The label has changed: the face is composed anew.
void redrawFace(int card)
{
    session.Picture1.image = {};
    session.shrinkdummy.image = {};
    loadCardPicture(card);
    drawCardFace(card);
}

double rowTop(int row) { return session.Grid.headerHeight + double(row - 1) * cardRowHeight; }

} // namespace

void layoutTable()
{
    TableGrid& grid = session.Grid;
    setColumns();
    setRows(rowsBeforeLayout);
    session.gridScroll.max = session.numCards;
    session.gridScroll.value = 0;
    setRows(std::max(2, (grid.height - lowerMargin - grid.headerHeight) / cardRowHeight + 1));
    session.gridScroll.largeChange = std::max(1, grid.rows - 2);
    session.tablePanel.visible = true;
}

void fillTable()
{
    withErrorBox([] {
        for (int f = 1; f + 1 < session.Grid.cols; ++f)
            cell(0, f + 1) = session.fieldName[f];
        for (int row = 1; row < session.Grid.rows; ++row)
            fillRow(row);
    });
    screen.redrawTable();
}

void scrollTableTo(int value)
{
    session.gridScroll.value = std::clamp(value, 0, session.gridScroll.max);
    session.pullDownBut.visible = false;
    session.AnswerHolder.visible = false;
    if (session.editBox.visible) {
        storeCell();
        session.editBox.visible = false;
    }
    fillTable();
}

void storeCell()
{
    withErrorBox([] {
        const int card = session.selectedCard;
        cell(session.gridEditRow, session.gridEditCol) = session.editBoxText;
        session.cardValue[card][session.gridEditCol - 1] = session.editBoxText;
        for (int f = 1; f <= session.maxFields; ++f)
            session.DataBox[f] = session.cardValue[card][f];
        saveCardValues(card);
        if (session.gridEditCol != labelColumn)
            return;
        redrawFace(card);
        session.Grid.face[std::size_t(session.gridEditRow)] = session.box[card].picture;
    });
    screen.redrawTable();
}

void moveToNextCell()
{
    if (session.gridEditCol <= session.numFields) {
        ++session.gridEditCol;
    } else if (session.gridEditRow < session.Grid.rows - 1) {
        session.gridEditCol = labelColumn;
        ++session.gridEditRow;
    } else {
        scrollTableTo(session.gridScroll.value + session.gridScroll.largeChange);
        session.gridEditRow = 2;
        session.gridEditCol = labelColumn;
    }
    openCell();
}

void openCell() {}

int rowOfDrop(double x, double y)
{
    if (x < numberColumnWidth || x >= numberColumnWidth + faceColumnWidth)
        return 0;
    for (int row = 1; row <= session.Grid.rows - 2; ++row) {
        if (y >= rowTop(row) && y < rowTop(row + 1))
            return row;
    }
    return 0;
}

void dropPictureOnRow(int row, const QString& path)
{
    withErrorBox([&] {
        const QImage dropped = readPicture(path);
        const int card = row + session.gridScroll.value;
        session.gridEditCol = 1;
        session.gridEditRow = row;
        session.selectedCard = qint16(card);
        session.shrinkdummy.image = {};
        paintDroppedPicture(dropped);
        saveCardPicture(card);
        drawCardFace(card);
        session.Grid.face[std::size_t(row)] = session.box[card].picture;
    });
    screen.redrawTable();
}
