#include "tools/toolCommands.h"

#include "board/labels.h"
#include "board/mode.h"
#include "controls/forms.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "tools/arranging.h"
#include "tools/findForm.h"
#include "tools/finding.h"
#include "tools/groupForm.h"
#include "tools/grouping.h"
#include "tools/moveForm.h"
#include "tools/sortForm.h"
#include "tools/sorting.h"
#include "tools/venn.h"

using namespace Qt::StringLiterals;

namespace {

/// Prepares the tool's dialog and shows it; true when the pupil said OK.
template <class F>
bool answered()
{
    form<F>().prepare();
    return saysOk(form<F>());
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
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::information, u"Find Results"_s,
                              u"Number of cards found: "_s + QString::number(session.foundCount));
}
