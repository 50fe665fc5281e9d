#include "store/openDatabase.h"

#include "board/mode.h"
#include "platform/desktop.h"
#include "store/chooseDatabase.h"
#include "store/opening.h"

void openDatabase()
{
    showCardMode();
    const QString folder = chooseDatabase(desktop.programFolder());
    if (folder != QLatin1String("Cancel"))
        openChosenFolder(folder);
}
