#include "board/mode.h"

#include "board/labels.h"
#include "core/mainView.h"
#include "core/session.h"

using namespace Qt::StringLiterals;

void setMode(const QString& mode)
{
    withErrorBox([&] {
        clearBoardLabels();
        session.window.MSChart.visible = false;
        session.window.cmdCopyGraph.visible = false;
        session.board.colour = session.options.BCol;
        if (mode == "card"_L1) {
            session.table.panel.visible = false;
            session.table.editBox.visible = false;
        } else if (mode == "table"_L1) {
            mainView.showTable();
        }
        mainView.showControls();
        mainView.redrawBoard();
    });
}

void showCardMode()
{
    session.window.btnTable.pressed = false;
    session.window.btnCards.pressed = true;
    setMode(u"card"_s);
}

bool boardIsCovered() { return session.table.panel.visible || session.window.MSChart.visible; }
