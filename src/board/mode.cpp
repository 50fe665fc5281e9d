#include "board/mode.h"

#include "board/labels.h"
#include "core/screen.h"
#include "core/session.h"

void setMode(const QString& mode)
{
    withErrorBox([&] {
        clearBoardLabels();
        session.MSChart.visible = false;
        session.boardColour = session.BCol;
        if (mode == QLatin1String("card")) {
            session.tablePanel.visible = false;
            session.editBox.visible = false;
        } else if (mode == QLatin1String("table")) {
            screen.showTable();
        }
        screen.showControls();
        screen.redrawBoard();
    });
}

void showCardMode()
{
    session.btnTable.pressed = false;
    session.btnCards.pressed = true;
    setMode(QStringLiteral("card"));
}
