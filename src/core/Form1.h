// The main window: the board over its whole area, the menu's band, and the table and the chart below the
// band.
#pragma once

#include "core/menuBar.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

class BoardWidget;

class TablePanel;

class Form1 : public QWidget {
    Q_OBJECT
public:
    Form1();
    void load();

    /// Lays the window's parts out for its size; tells when it is too small for them.
    void layoutWindow();
    /// The controls take their states in the session.
    void showControls();

    BoardWidget* const board;
    QWidget* const toolbarBlock;
    MenuBar* const menuBar;
    QPushButton* const btnCards;
    QPushButton* const btnTable;
    QLabel* const PicRef;
    QCheckBox* const refreshCheck;
    QPushButton* const cmdQuestion;
    QPushButton* const cmdCopyGraph;
    TablePanel* const tablePanel;
    QTimer* const tmrDelCard; // 2 ms, once: reads its option again
    QTimer* const TmrShow;    // 3000 ms, once: does nothing more

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Puts the floors together: what lower ones ask of higher ones leads to its routine from here on.
    void assemble();
    void fillBand();
    void connectControls();
    void changeMode(const QPushButton& button);
};
