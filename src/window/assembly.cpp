#include "window/assembly.h"

#include "analysis/analysisCommands.h"
#include "analysis/frmQuestion.h"
#include "analysis/reportForm.h"
#include "board/boardWidget.h"
#include "board/tablePanel.h"
#include "controls/balloon.h"
#include "controls/chartView.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "database/openDatabase.h"
#include "database/refresh.h"
#include "editing/editCard.h"
#include "editing/newCommand.h"
#include "guidance/frmVids.h"
#include "guidance/tutorial.h"
#include "options/TeacherOps.h"
#include "paint/picEdit.h"
#include "platform/desktop.h"
#include "tools/FrmSpeed.h"
#include "tools/warnForm.h"
#include "window/Form1.h"
#include "window/dispatch.h"

#include <QPlainTextEdit>

namespace {

/// Calls the routine with the main window, if there is one: a flight goes on for a moment after it was
/// unloaded.
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
    mainView.showTitle = inWindow([](Form1& window) { window.setWindowTitle(session.window.title); });
    mainView.showControls = inWindow([](Form1& window) { window.showControls(); });
    mainView.showHint = inWindow([](Form1& window, const QString& text) { showHint(window, text); });
    mainView.hideHints = endHint;
    mainView.showTable = inWindow([](Form1& window) { window.tablePanel->enter(); });
    mainView.chartPicture = [] {
        return isLoaded<Form1>() ? form<Form1>().MSChart->picture(2 * desktop.screen.pixelRatio()) : QImage();
    };
    mainView.chartDrawing = [] {
        if (!isLoaded<Form1>())
            return ChartDrawing();
        ChartView& chart = *form<Form1>().MSChart;
        return ChartDrawing{QSizeF(chart.size()), chart.painting()};
    };
    mainView.redrawTable = inWindow([](Form1& window) { window.tablePanel->showGrid(); });
    mainView.showSpeedWindow = [] { showSpeedWindow(isLoaded<Form1>() ? &form<Form1>() : nullptr); };
    mainView.unloadSpeedWindow = unload<FrmSpeed>;
}

void connectBoard()
{
    mainView.redrawBoard = inWindow([](Form1& window) { window.board->repaintBoard(); });
    mainView.redrawCard = inWindow([](Form1& window, int card) { window.board->repaintCard(card); });
    mainView.captionFont = [] { return isLoaded<Form1>() ? form<Form1>().board->font() : QFont(); };
    mainView.measureLabel = inWindow([](Form1& window, const QString& text, double& width, double& height) {
        window.board->measureLabel(text, width, height);
    });
}

/// Enables a control of the report window, or opens its text for typing, if the window is loaded.
void allowInReport(const char* control, bool allowed)
{
    if (!isLoaded<reportForm>())
        return;
    auto& report = form<reportForm>();
    auto* part = report.findChild<QWidget*>(QLatin1StringView(control));
    if (part == static_cast<QWidget*>(report.RTF1))
        report.lockNotes(!allowed);
    else if (part)
        part->setEnabled(allowed);
}

void connectCommands()
{
    mainView.setRefresh = setRefresh;
    mainView.newDatabase = makeNewDatabase;
    mainView.openDatabase = openDatabase;
    mainView.cardDropped = checkDropOnBin;
    mainView.openCard = openCardEditor;
    mainView.openPictureEditor = openPictureEditor;
    mainView.watchTutorial = watchTutorial;
    mainView.installTutorials = installTutorials;
    mainView.showClues = showClues;
    mainView.closeClues = unload<frmQuestion>;
    mainView.allowInReport = allowInReport;
    mainView.openTeacherOptions = openTeacherOptions;
    mainView.startTimer = inWindow([](Form1& window, const char* name) { window.startTimer(name); });
}

} // namespace

void connectHooks()
{
    connectWindow();
    connectBoard();
    connectCommands();
}
