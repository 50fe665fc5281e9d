// The table as pupils see it: a grid with a header, large rows and a scroll bar of the system's own.
#pragma once

#include <QFrame>

class QScrollBar;
class TableGridWidget;

/// Shows session.Grid and session.gridScroll; everything it does goes through the table's routines.
class TablePanel : public QFrame {
    Q_OBJECT
public:
    explicit TablePanel(QWidget* parent);

    /// Gives grid and scroll bar their places on the panel and the table, when it is in view, its new rows;
    /// the card at its top stays.
    void layOut(const QRect& gridPlace, const QRect& scrollPlace);

    /// Lays the table out for the window's size, from its first card on.
    void enter();

    /// Takes over cells, faces and scroll bar from the session.
    void showGrid();

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void scrollBy(int rows);

    TableGridWidget* const Grid;
    QScrollBar* const gridScroll;
    double wheelTurn = 0; // part of a row that the wheel has turned so far
};
