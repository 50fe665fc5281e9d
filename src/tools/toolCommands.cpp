#include "tools/toolCommands.h"

#include "board/labels.h"
#include "board/mode.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/forms.h"
#include "tools/arranging.h"
#include "tools/findForm.h"
#include "tools/finding.h"
#include "tools/groupForm.h"
#include "tools/grouping.h"
#include "tools/moveForm.h"
#include "tools/sortForm.h"
#include "tools/sorting.h"
#include "tools/venn.h"

namespace {

/// Prepares the tool's dialog and shows it; true when the pupil said OK.
template <class F>
bool answered()
{
    form<F>().prepare();
    session.dialogResult.clear();
    showModal(form<F>());
    return session.dialogResult == QLatin1String("OK");
}

void hideFindForm()
{
    if (isLoaded<findForm>())
        form<findForm>().hide();
}

} // namespace

void sortCommand()
{
    withErrorBox([] {
        showCardMode();
        clearBoardLabels();
        if (answered<sortForm>())
            sortByChosenField();
    });
}

void groupCommand()
{
    withErrorBox([] {
        clearBoardLabels();
        showCardMode();
        if (!answered<groupForm>())
            return;
        const int field = session.chosenField;
        buildGroups(field);
        moveCardsToGroups(field);
    });
}

void arrangeCommand()
{
    withErrorBox([] {
        showCardMode();
        if (answered<moveForm>())
            arrangeCards(form<moveForm>().chosen());
    });
}

void findCommand()
{
    withErrorBox([] {
        showCardMode();
        if (!answered<findForm>())
            return;
        if (session.vennTick) {
            runVenn(hideFindForm);
            hideFindForm();
            return;
        }
        runFind();
        reportFound();
    });
}

void reportFound()
{
    desktop.beep();
    desktop.showMessage(MessageIcon::information, QStringLiteral("Find Results"),
                        QStringLiteral("Number of cards found: ") + QString::number(session.foundCount));
}
