#include "analysis/printCommand.h"

#include "analysis/FrmPrint.h"
#include "analysis/printBoard.h"
#include "analysis/printCard.h"
#include "analysis/printGraph.h"
#include "analysis/printJob.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"

using namespace Qt::StringLiterals;

namespace {

void copyChart()
{
    ignoringErrors({
        [] { desktop.clipboard.clear(); },
        [] { desktop.clipboard.copyPicture(mainView.chartPicture()); },
    });
}

} // namespace

void printCommand()
{
    if (!saysOk(form<FrmPrint>()))
        return;
    const QString choice = session.paper.printChoice;
    if (choice == "Screen"_L1) {
        printOut(u"Cards"_s, PaperShape::landscape, drawBoard);
    } else if (choice == "Card"_L1) {
        const int card = session.selectedCard;
        printOut(u"Card"_s, PaperShape::portrait, [card](Page& page) { drawCard(page, card); });
    } else if (choice == "Graph"_L1) {
        copyChart();
        printOut(u"Graph"_s, PaperShape::landscape, drawGraphPage);
    }
}
