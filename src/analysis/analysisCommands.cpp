#include "analysis/analysisCommands.h"

#include "analysis/frmQuestion.h"
#include "analysis/graph.h"
#include "analysis/graphWiz.h"
#include "analysis/groupTable.h"
#include "analysis/refusals.h"
#include "analysis/reportForm.h"
#include "analysis/statsForm.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/errors.h"
#include "store/questionFiles.h"

using namespace Qt::StringLiterals;

namespace {

void graphFromWizard()
{
    form<graphWiz>().prepare();
    if (!saysOk(form<graphWiz>()))
        return;
    if (session.graph.showAllData)
        listValues(session.chosenField);
    else
        countGroups(session.chosenField);
    findGraphMax();
    sortGroups(session.chosenField);
    drawGraph();
}

} // namespace

void makeGraph()
{
    if (session.numCards > mostCardsInGraph)
        refuseGraphOfSoMany();
    else if (session.numCards <= 0)
        refuseGraph();
    else if (!withErrorBox(graphFromWizard)) {
        session.window.cmdCopyGraph.visible = session.window.MSChart.visible;
        mainView.showControls();
    }
}

void showStatistics()
{
    if (session.numCards <= 0) {
        refuseStatistics();
        return;
    }
    withErrorBox([] {
        form<statsForm>().prepare();
        ask(form<statsForm>());
    });
}

void makeReport()
{
    if (session.numCards <= 0) {
        refuseReport();
        return;
    }
    form<reportForm>().offerFieldNames();
    ask(form<reportForm>());
}

void showClues()
{
    const QString clues = readQuestions().value_or(u"No Information Setup!"_s);
    form<frmQuestion>().present(clues);
}
