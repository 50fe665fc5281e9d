#include "board/tableGridWidget.h"

#include "board/tableView.h"
#include "controls/balloon.h"
#include "core/session.h"
#include "platform/errors.h"
#include "platform/textLines.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int faceColumn = 1;
constexpr int headerLines = 2;
constexpr int headerPadding = 10; // left and right of a name together, including the line between columns

/// The row of cells, from 0, that shows the last card; smaller when the last card is scrolled out of view.
int rowOfLastCard() { return session.numCards - session.table.gridScroll.value - 1; }

/// Paints a face unscaled from the cell's upper left corner.
class FaceDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const auto face = index.data(Qt::DecorationRole).value<QImage>();
        QStyledItemDelegate::paint(painter, option, QModelIndex());
        painter->save();
        painter->setClipRect(option.rect);
        painter->drawImage(option.rect.topLeft(), face);
        painter->restore();
    }
};

} // namespace

TableGridWidget::TableGridWidget(QWidget* parent)
    : QTableWidget(parent)
{
    setObjectName(u"Grid"_s);
    setAccessibleName(u"Table"_s);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAcceptDrops(true);
    setTabKeyNavigation(false);
    setWordWrap(true);
    setItemDelegateForColumn(faceColumn, new FaceDelegate(this));
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

int TableGridWidget::headerHeight() const
{
    horizontalHeader()->ensurePolished(); // applies the style sheet's font
    return horizontalHeader()->sizeHint().height();
}

void TableGridWidget::showGrid()
{
    const TableGrid& grid = session.table.Grid;
    setColumnCount(grid.cols);
    setRowCount(std::max(grid.rows - 1, 0));
    showName(0, u"No."_s);
    showName(faceColumn, u"Card"_s);
    for (int column = faceColumn + 1; column < grid.cols; ++column)
        showName(column, grid.text[0][column]);
    for (int row = 1; row < grid.rows; ++row)
        showRow(row);
}

/// A name too long for its column is shown in two lines, with the whole name as its hint.
void TableGridWidget::showName(int column, const QString& name)
{
    const int width = session.table.Grid.columnWidths[column];
    const QTableWidgetItem* old = horizontalHeaderItem(column);
    if (old != nullptr && columnWidth(column) == width && old->data(Qt::AccessibleTextRole) == name)
        return; // unchanged: breaking lines takes longer than filling a row
    setColumnWidth(column, width);
    QFont font = horizontalHeader()->font();
    font.setBold(true);
    auto* shown = new QTableWidgetItem(textInLines(name, font, width - headerPadding, headerLines));
    shown->setToolTip(plainHint(name));
    shown->setData(Qt::AccessibleTextRole, name);
    setHorizontalHeaderItem(column, shown);
}

void TableGridWidget::showRow(int row)
{
    const TableGrid& grid = session.table.Grid;
    const bool last = row == grid.rows - 1;
    setRowHeight(row - 1, last ? verticalHeader()->defaultSectionSize() : cardRowHeight);
    for (int column = 0; column < grid.cols; ++column) {
        QTableWidgetItem* shown = item(row - 1, column);
        if (shown == nullptr) {
            shown = new QTableWidgetItem;
            shown->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            setItem(row - 1, column, shown);
        }
        const QString& text = grid.text[row][column];
        if (column == faceColumn) {
            shown->setData(Qt::DecorationRole, grid.face[row]);
            shown->setData(Qt::AccessibleTextRole, grid.text[row][2]);
        } else {
            shown->setText(text);
            shown->setToolTip(plainHint(text));
        }
    }
}

void TableGridWidget::keyPressEvent(QKeyEvent* event)
{
    const int lastFullRow = std::max(rowCount() - 2, 0);
    const int page = session.table.gridScroll.largeChange;
    switch (event->key()) {
    case Qt::Key_PageDown:
        scrollWanted(page);
        keepOnCards();
        return;
    case Qt::Key_PageUp:
        scrollWanted(-page);
        return;
    case Qt::Key_Home:
        scrollWanted(-session.table.gridScroll.max);
        return;
    case Qt::Key_End:
        scrollWanted(session.numCards - 1 - session.table.gridScroll.value);
        keepOnCards();
        return;
    case Qt::Key_Down:
        if (currentRow() >= rowOfLastCard())
            return;
        if (currentRow() >= lastFullRow) {
            scrollWanted(1);
            return;
        }
        break;
    case Qt::Key_Up:
        if (currentRow() <= 0) {
            scrollWanted(-1);
            return;
        }
        break;
    default:
        break;
    }
    QTableWidget::keyPressEvent(event);
}

/// Moves the current cell up to the last card when it is below it.
void TableGridWidget::keepOnCards()
{
    const int last = std::max(rowOfLastCard(), 0);
    if (currentRow() > last)
        setCurrentCell(last, currentColumn());
}

void TableGridWidget::wheelEvent(QWheelEvent* event) { event->ignore(); } // the panel scrolls

void TableGridWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction(); // from now on the moves are reported
}

/// The pointer shows where a drop counts: on the pictures of the cards.
void TableGridWidget::dragMoveEvent(QDragMoveEvent* event) { event->setAccepted(rowUnder(*event) != 0); }

void TableGridWidget::dropEvent(QDropEvent* event)
{
    const QList<QUrl> files = event->mimeData()->urls();
    const int row = rowUnder(*event);
    event->setAccepted(row != 0 && !files.isEmpty());
    if (event->isAccepted())
        guarded([&] { dropPictureOnRow(row, files.first().toLocalFile()); });
}

/// The row of the session's grid on whose picture the mouse is, 0 beside the pictures and in an empty row.
int TableGridWidget::rowUnder(const QDropEvent& drag) const
{
    const QPointF inViewport = drag.position();
    const int row = rowOfDrop(inViewport.x(), inViewport.y() + session.table.Grid.headerHeight);
    return row != 0 && !session.table.Grid.cardId[row].isEmpty() ? row : 0;
}
