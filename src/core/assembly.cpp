// Where the floors are put together: the one place that knows which routine answers which hook of the screen.
#include "board/boardWidget.h"
#include "board/refresh.h"
#include "board/tablePanel.h"
#include "core/Form1.h"
#include "core/dispatch.h"
#include "core/screen.h"
#include "core/session.h"
#include "editing/editCard.h"
#include "editing/newCommand.h"
#include "platform/balloon.h"
#include "platform/forms.h"
#include "store/openDatabase.h"
#include "tools/FrmSpeed.h"
#include "tools/warnForm.h"

namespace {

/// Runs with the main window, while there is one: flights go on for a moment after it has gone.
template <class Routine>
auto inWindow(Routine routine)
{
    return [routine](auto&&... arguments) {
        if (isLoaded<Form1>())
            routine(form<Form1>(), std::forward<decltype(arguments)>(arguments)...);
    };
}

void connectWindow()
{
    screen.showTitle = inWindow([](Form1& window) { window.setWindowTitle(session.title); });
    screen.showControls = inWindow([](Form1& window) { window.showControls(); });
    screen.showHint = inWindow([](Form1& window, const QString& text) { showHint(window, text); });
    screen.hideHints = endHint;
    screen.showTable = inWindow([](Form1& window) { window.tablePanel->enter(); });
    screen.redrawTable = inWindow([](Form1& window) { window.tablePanel->showGrid(); });
}

void connectCommands()
{
    screen.command = runCommand;
    screen.setRefresh = setRefresh;
    screen.newDatabase = makeNewDatabase;
    screen.openDatabase = openDatabase;
    screen.cardDropped = checkDropOnBin;
    screen.openCard = openCardEditor;
}

} // namespace

void Form1::assemble()
{
    connectWindow();
    connectCommands();
    board->connectScreen();
    installSpeedWindow(*this);
}
