#include "board/tablePanel.h"

#include "board/tableGridWidget.h"
#include "board/tableView.h"
#include "core/session.h"
#include "platform/errors.h"

#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr int gridMargin = 8;
constexpr int besideGrid = 20 + 21; // pixels of the panel's width that the grid leaves
constexpr int scrollFromRight = 32;
constexpr int scrollWidth = 28;
constexpr double turnOfOneRow = 120; // eighths of a degree

} // namespace

TablePanel::TablePanel(QWidget* parent)
    : QFrame(parent)
    , Grid(new TableGridWidget(this))
    , gridScroll(new QScrollBar(Qt::Vertical, this))
{
    setObjectName(QStringLiteral("tablePanel"));
    gridScroll->setObjectName(QStringLiteral("gridScroll"));
    gridScroll->setAccessibleName(QStringLiteral("Scroll the table"));
    Grid->scrollWanted = [this](int rows) { scrollBy(rows); };
    connect(gridScroll, &QScrollBar::valueChanged, this,
            [](int value) { guarded([&] { scrollTableTo(value); }); });
}

void TablePanel::measureGrid()
{
    TableGrid& grid = session.Grid;
    grid.width = width() - besideGrid;
    grid.height = height() - 2 * gridMargin;
    Grid->setGeometry(gridMargin, gridMargin, grid.width, grid.height);
    gridScroll->setGeometry(width() - scrollFromRight, gridMargin, scrollWidth, grid.height);
    grid.headerHeight = Grid->headerHeight();
}

void TablePanel::showGrid()
{
    const QSignalBlocker quiet(gridScroll); // the session has scrolled already
    gridScroll->setRange(0, session.gridScroll.max);
    gridScroll->setPageStep(session.gridScroll.largeChange);
    gridScroll->setValue(session.gridScroll.value);
    Grid->showGrid();
}

void TablePanel::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    guarded([this] {
        measureGrid();
        if (!session.tablePanel.visible)
            return;
        layoutTable();
        fillTable();
    });
}

void TablePanel::wheelEvent(QWheelEvent* event)
{
    wheelTurn -= event->angleDelta().y() / turnOfOneRow;
    const int rows = int(wheelTurn);
    wheelTurn -= rows;
    event->accept();
    if (rows != 0)
        scrollBy(rows);
}

void TablePanel::scrollBy(int rows) { gridScroll->setValue(gridScroll->value() + rows); }
