#include "editing/newCommand.h"

#include "board/labels.h"
#include "board/mode.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "core/title.h"
#include "database/NewForm.h"
#include "database/opening.h"
#include "editing/DesignForm.h"
#include "editing/designCommand.h"
#include "store/paths.h"
#include "store/questionFiles.h"

using namespace Qt::StringLiterals;

void newCommand()
{
    closeDatabase();
    makeNewDatabase();
}

void closeDatabase()
{
    abandonRun();
    deleteAnswers();
    mainView.closeClues();
    session.design.ChkRD = false;
    unload<DesignForm>();
    setTitle(titleWithoutDatabase());
    showCardMode();
    clearBoardLabels();
    resetFieldTable();
    session.design.fieldTableForgotten = !session.dbPath.isEmpty();
    resetCardTable();
    mainView.redrawBoard();
}

void makeNewDatabase()
{
    if (!saysOk(form<NewForm>()))
        return;
    designCommand();
    setTitle(lastPathPart(session.dbPath) + u" - Tallymoor"_s + titleEnding());
}
