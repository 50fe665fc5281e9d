#include "board/tableView.h"

#include "board/droppedPicture.h"
#include "board/faces.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/errors.h"
#include "store/cardFiles.h"
#include "store/cardSaving.h"

#include <algorithm>

namespace {

constexpr int labelColumn = 2; // of field 1: field f is in column f + 1
constexpr int lowerMargin = 12;
constexpr int rowsBeforeLayout = 10;

void setRows(int rows)
{
    TableGrid& grid = session.table.Grid;
    grid.rows = rows;
    grid.text.assign(rows, std::vector<QString>(std::size_t(grid.cols)));
    grid.face.assign(rows, {});
    grid.cardId.assign(rows, {});
}

void setColumns()
{
    TableGrid& grid = session.table.Grid;
    grid.cols = session.numFields + labelColumn;
    const int valueWidth = (grid.width - faceColumnWidth - 48) / session.numFields;
    grid.columnWidths.assign(grid.cols, std::max(valueWidth, 0));
    grid.columnWidths[0] = numberColumnWidth;
    grid.columnWidths[1] = faceColumnWidth;
}

QString& cell(int row, int column)
{
    TableGrid& grid = session.table.Grid;
    if (row < 0 || row >= grid.rows || column < 0 || column >= grid.cols)
        throw RuntimeError(outOfRange);
    return grid.text[row][column];
}

void fillRow(int row)
{
    const int card = row + session.table.gridScroll.value;
    const bool shown = card <= session.numCards;
    cell(row, 0) = shown ? QString::number(card) : QString();
    session.table.Grid.cardId[row] = shown ? session.cardId[card] : QString();
    session.table.Grid.face[row] = shown ? session.box[card].picture : QImage();
    for (int f = 1; f + 1 < session.table.Grid.cols; ++f)
        cell(row, f + 1) = shown ? session.cardValue[card][f] : QString();
}

/// Redraws the face after its label has changed.
void redrawFace(int card)
{
    session.editor.Picture1.image = {};
    session.editor.shrinkdummy.image = {};
    loadCardPicture(card);
    drawCardFace(card);
}

/// The last card can stand in the first row.
int lastScrollValue() { return std::max(session.numCards - 1, 0); }

double rowTop(int row) { return session.table.Grid.headerHeight + double(row - 1) * cardRowHeight; }

} // namespace

void layoutTable()
{
    TableGrid& grid = session.table.Grid;
    setColumns();
    setRows(rowsBeforeLayout);
    session.table.gridScroll.max = lastScrollValue();
    session.table.gridScroll.value = 0;
    setRows(std::max(2, (grid.height - lowerMargin - grid.headerHeight) / cardRowHeight + 1));
    session.table.gridScroll.largeChange = std::max(1, grid.rows - 2);
    session.table.panel.visible = true;
}

void fillTable()
{
    withErrorBox([] {
        for (int f = 1; f + 1 < session.table.Grid.cols; ++f)
            cell(0, f + 1) = session.fieldName[f];
        for (int row = 1; row < session.table.Grid.rows; ++row)
            fillRow(row);
    });
    mainView.redrawTable();
}

void refillTable()
{
    TableScroll& scroll = session.table.gridScroll;
    scroll.max = lastScrollValue();
    scroll.value = std::min(scroll.value, scroll.max);
    fillTable();
}

void scrollTableTo(int value)
{
    session.table.gridScroll.value = std::clamp(value, 0, session.table.gridScroll.max);
    session.menu.pullDownBut.visible = false;
    session.menu.AnswerHolder.visible = false;
    if (session.table.editBox.visible) {
        storeCell();
        session.table.editBox.visible = false;
    }
    fillTable();
}

void storeCell()
{
    withErrorBox([] {
        const int card = session.selectedCard;
        cell(session.table.gridEditRow, session.table.gridEditCol) = session.table.editBoxText;
        session.cardValue[card][session.table.gridEditCol - 1] = session.table.editBoxText;
        for (int f = 1; f <= session.maxFields; ++f)
            session.editor.DataBox[f] = session.cardValue[card][f];
        saveCardValues(card);
        if (session.table.gridEditCol != labelColumn)
            return;
        redrawFace(card);
        session.table.Grid.face[session.table.gridEditRow] = session.box[card].picture;
    });
    mainView.redrawTable();
}

void moveToNextCell()
{
    if (session.table.gridEditCol <= session.numFields) {
        ++session.table.gridEditCol;
    } else if (session.table.gridEditRow < session.table.Grid.rows - 1) {
        session.table.gridEditCol = labelColumn;
        ++session.table.gridEditRow;
    } else {
        scrollTableTo(session.table.gridScroll.value + session.table.gridScroll.largeChange);
        session.table.gridEditRow = 2;
        session.table.gridEditCol = labelColumn;
    }
    openCell();
}

void openCell() {}

int rowOfDrop(double x, double y)
{
    if (x < numberColumnWidth || x >= numberColumnWidth + faceColumnWidth)
        return 0;
    for (int row = 1; row <= session.table.Grid.rows - 2; ++row) {
        if (y >= rowTop(row) && y < rowTop(row + 1))
            return row;
    }
    return 0;
}

void dropPictureOnRow(int row, const QString& path)
{
    withErrorBox([&] {
        const int card = cardWithId(session.table.Grid.cardId[row]);
        if (card == 0)
            return; // an empty row, or a card that another workstation has deleted
        const QImage dropped = readDroppedPicture(path);
        session.table.gridEditCol = 1;
        session.table.gridEditRow = row;
        session.selectedCard = qint16(card);
        session.editor.shrinkdummy.image = {};
        paintDroppedPicture(dropped);
        saveCardPicture(card);
        drawCardFace(card);
        session.table.Grid.face[row] = session.box[card].picture;
    });
    mainView.redrawTable();
}
