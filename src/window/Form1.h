// The main window: the board over its whole area, the menu band on top of it, and the table below the band.
#pragma once

#include "window/menuBar.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <functional>

struct ControlState;
class BoardWidget;
class ChartView;
class TablePanel;

class Form1 : public QWidget {
    Q_OBJECT
public:
    Form1();
    void load();

    /// Places the window's parts for its size; shows an error if it is too small.
    void layoutWindow();
    /// Updates the controls from their states in the session.
    void showControls();
    /// Starts the timer of that name in the table of window/onceTimers.h.
    void startTimer(const char* name);

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
    ChartView* const MSChart; // over board and table, under the menu

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillBand();
    void connectControls();
    void whenToggled(QAbstractButton* button, const ControlState& state, const std::function<void()>& action);
    void changeMode(const QPushButton& button);
    bool closesMenu(const QWidget& pressed) const;
    void showChart();
};
