#include "editing/designCommand.h"

#include "board/faces.h"
#include "board/mode.h"
#include "controls/forms.h"
#include "core/session.h"
#include "editing/DesignForm.h"
#include "store/descriptionFile.h"

#include <utility>

void designCommand()
{
    showCardMode();
    // Without this a cancelled "New" would write its empty field table over the database that is still open.
    // One that couldn't be read whole may be readable by now.
    if (std::exchange(session.design.fieldTableForgotten, false) || !session.descriptionWhole)
        readDbInfo();
    const qint16 sizeBefore = session.cardSize;
    form<DesignForm>().layoutDesignFields();
    ask(form<DesignForm>());
    if (session.cardSize != sizeBefore)
        resizeAllCards();
    writeDbInfo();
}
