#include "board/tableGridWidget.h"

#include "board/tableView.h"
#include "core/session.h"
#include "platform/balloon.h"
#include "platform/errors.h"
#include "platform/textLines.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace {

constexpr int faceColumn = 1;
constexpr int headerLines = 2;
constexpr int headerPadding = 10; // left and right of a name together, with the line between columns

/// The row of cells, from 0, that shows the last card; less where it was scrolled out of view.
int rowOfLastCard() { return session.numCards - session.gridScroll.value - 1; }

/// Paints a face as it is, from the cell's upper left corner.
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
    setObjectName(QStringLiteral("Grid"));
    setAccessibleName(QStringLiteral("Table"));
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
    horizontalHeader()->ensurePolished(); // its font is that of the style sheet only then
    return horizontalHeader()->sizeHint().height();
}

void TableGridWidget::showGrid()
{
    const TableGrid& grid = session.Grid;
    setColumnCount(grid.cols);
    setRowCount(std::max(grid.rows - 1, 0));
    showName(0, QStringLiteral("No."));
    showName(faceColumn, QStringLiteral("Card"));
    for (int column = faceColumn + 1; column < grid.cols; ++column)
        showName(column, grid.text[0][std::size_t(column)]);
    for (int row = 1; row < grid.rows; ++row)
        showRow(row);
}

/// A name too long for its column stands in two lines, and whole in its hint.
void TableGridWidget::showName(int column, const QString& name)
{
    const int width = session.Grid.columnWidths[std::size_t(column)];
    const QTableWidgetItem* old = horizontalHeaderItem(column);
    if (old != nullptr && columnWidth(column) == width && old->data(Qt::AccessibleTextRole) == name)
        return; // breaking lines takes longer than a row of cells
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
    const TableGrid& grid = session.Grid;
    const bool last = row == grid.rows - 1;
    setRowHeight(row - 1, last ? verticalHeader()->defaultSectionSize() : cardRowHeight);
    for (int column = 0; column < grid.cols; ++column) {
        QTableWidgetItem* shown = item(row - 1, column);
        if (shown == nullptr) {
            shown = new QTableWidgetItem;
            shown->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            setItem(row - 1, column, shown);
        }
        const QString& text = grid.text[std::size_t(row)][std::size_t(column)];
        if (column == faceColumn) {
            shown->setData(Qt::DecorationRole, grid.face[std::size_t(row)]);
            shown->setData(Qt::AccessibleTextRole, grid.text[std::size_t(row)][2]);
        } else {
            shown->setText(text);
            shown->setToolTip(plainHint(text));
        }
    }
}

void TableGridWidget::keyPressEvent(QKeyEvent* event)
{
    const int lastFullRow = std::max(rowCount() - 2, 0);
    const int page = session.gridScroll.largeChange;
    switch (event->key()) {
    case Qt::Key_PageDown:
        scrollWanted(page);
        keepOnCards();
        return;
    case Qt::Key_PageUp:
        scrollWanted(-page);
        return;
    case Qt::Key_Home:
        scrollWanted(-session.gridScroll.max);
        return;
    case Qt::Key_End:
        scrollWanted(session.numCards - 1 - session.gridScroll.value);
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

/// The cell with the keyboard is one of a card.
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
        event->acceptProposedAction();
}

void TableGridWidget::dragMoveEvent(QDragMoveEvent* event) { event->acceptProposedAction(); }

void TableGridWidget::dropEvent(QDropEvent* event)
{
    const QPointF place = event->position() + QPointF(0, session.Grid.headerHeight); // of the viewport
    const QList<QUrl> files = event->mimeData()->urls();
    event->acceptProposedAction();
    const int row = rowOfDrop(place.x(), place.y());
    if (row != 0 && !files.isEmpty())
        guarded([&] { dropPictureOnRow(row, files.first().toLocalFile()); });
}
