// The grid of the table: rows of cells that can be read and walked through, and pictures dropped on them.
#pragma once

#include <QTableWidget>

#include <functional>

class TableGridWidget : public QTableWidget {
    Q_OBJECT
public:
    explicit TableGridWidget(QWidget* parent);

    /// Height of the header, which is row 0 of the session's grid.
    int headerHeight() const;
    void showGrid();

    /// Requests scrolling by that many rows (up when negative).
    std::function<void(int rows)> scrollWanted;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void showName(int column, const QString& name);
    void showRow(int row);
    void keepOnCards();
    int rowUnder(const QDropEvent& drag) const;
};
