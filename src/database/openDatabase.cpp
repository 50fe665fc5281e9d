#include "database/openDatabase.h"

#include "board/mode.h"
#include "database/chooseDatabase.h"
#include "database/opening.h"
#include "platform/desktop.h"

using namespace Qt::StringLiterals;

void openDatabase()
{
    showCardMode();
    const QString folder = chooseDatabase(desktop.files.programFolder());
    if (folder != "Cancel"_L1)
        openChosenFolder(folder);
}
