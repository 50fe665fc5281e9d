#include "editing/newCommand.h"

#include "board/labels.h"
#include "board/mode.h"
#include "core/screen.h"
#include "core/session.h"
#include "core/title.h"
#include "editing/DesignForm.h"
#include "editing/NewForm.h"
#include "editing/designCommand.h"
#include "platform/forms.h"
#include "store/cardFiles.h"

void closeDatabase()
{
    deleteAnswers();
    session.designReadOnly = false;
    unload<DesignForm>();
    setTitle(titleWithoutDatabase());
    showCardMode();
    clearBoardLabels();
    resetFieldTable();
    session.fieldTableForgotten = !session.dbPath.isEmpty();
    resetCardTable();
    screen.redrawBoard();
    makeNewDatabase();
}

void makeNewDatabase()
{
    session.dialogResult.clear();
    showModal(form<NewForm>());
    if (session.dialogResult != QLatin1String("OK"))
        return;
    designCommand();
    setTitle(lastPathPart(session.dbPath) + QStringLiteral(" - Tallymoor") + titleEnding());
}
