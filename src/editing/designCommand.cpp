#include "editing/designCommand.h"

#include "board/faces.h"
#include "board/mode.h"
#include "core/session.h"
#include "editing/DesignForm.h"
#include "platform/forms.h"
#include "store/descriptionFile.h"

#include <utility>

void designCommand()
{
    showCardMode();
    // Without this a cancelled "New" would write its empty field table over the database that is still open.
    if (std::exchange(session.fieldTableForgotten, false))
        readDbInfo();
    const qint16 sizeBefore = session.cardSize;
    session.dialogResult.clear();
    form<DesignForm>().layoutDesignFields();
    showModal(form<DesignForm>());
    if (session.cardSize != sizeBefore)
        resizeAllCards();
    writeDbInfo();
}
