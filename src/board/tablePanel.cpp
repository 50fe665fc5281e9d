#include "board/tablePanel.h"

#include "board/tableGridWidget.h"
#include "board/tableView.h"
#include "core/session.h"
#include "platform/errors.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double turnOfOneRow = 120; // eighths of a degree

} // namespace

TablePanel::TablePanel(QWidget* parent)
    : QFrame(parent)
    , Grid(new TableGridWidget(this))
    , gridScroll(new QScrollBar(Qt::Vertical, this))
{
    setObjectName(u"tablePanel"_s);
    gridScroll->setObjectName(u"gridScroll"_s);
    gridScroll->setAccessibleName(u"Scroll the table"_s);
    Grid->scrollWanted = [this](int rows) { scrollBy(rows); };
    connect(gridScroll, &QScrollBar::valueChanged, this,
            [](int value) { guarded([&] { scrollTableTo(value); }); });
}

void TablePanel::layOut(const QRect& gridPlace, const QRect& scrollPlace)
{
    Grid->setGeometry(gridPlace);
    gridScroll->setGeometry(scrollPlace);
    session.table.Grid.width = gridPlace.width();
    session.table.Grid.height = gridPlace.height();
    if (!session.table.panel.visible)
        return;
    const int firstInView = session.table.gridScroll.value;
    enter();
    scrollTableTo(firstInView);
}

void TablePanel::enter()
{
    layoutTable();
    fillTable();
    const int headerHeight = Grid->headerHeight(); // depends on the names in it
    if (std::exchange(session.table.Grid.headerHeight, headerHeight) == headerHeight)
        return;
    layoutTable();
    fillTable();
}

void TablePanel::showGrid()
{
    const QSignalBlocker quiet(gridScroll); // the session has scrolled already
    gridScroll->setRange(0, session.table.gridScroll.max);
    gridScroll->setPageStep(session.table.gridScroll.largeChange);
    gridScroll->setValue(session.table.gridScroll.value);
    Grid->showGrid();
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
