#include "guidance/helpCommand.h"

#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "guidance/FrmHelp.h"

void helpCommand()
{
    session.board.colour = session.options.BCol;
    mainView.redrawBoard();
    showModal(form<FrmHelp>());
}
