// The table's widget: a grid with a header, large rows and a scroll bar of its own.
#pragma once

#include <QFrame>

class QScrollBar;
class TableGridWidget;

/// Shows session.table.Grid and session.table.gridScroll, and changes them through the routines of
/// tableView.h.
class TablePanel : public QFrame {
    Q_OBJECT
public:
    explicit TablePanel(QWidget* parent);

    /// Places grid and scroll bar on the panel. A visible table is given new rows for its size; the card at
    /// its top stays.
    void layOut(const QRect& gridPlace, const QRect& scrollPlace);

    /// Lays the table out for the window's size, from its first card on.
    void enter();

    /// Shows the cells, faces and scroll position of the session.
    void showGrid();

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void scrollBy(int rows);

    TableGridWidget* const Grid;
    QScrollBar* const gridScroll;
    double wheelTurn = 0; // rows, a fraction carried over to the next wheel event
};
