#include "database/opening.h"

#include "board/labels.h"
#include "board/mode.h"
#include "board/places.h"
#include "core/mainView.h"
#include "core/session.h"
#include "core/title.h"
#include "database/loading.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/wholeFile.h"
#include "store/options.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int fileMenu = 0;
constexpr int printLine = 2;
constexpr int tileGap = 10;

} // namespace

void abandonRun()
{
    session.run.stopped = true;
    mainView.unloadSpeedWindow();
}

void openFolder(const QString& folder)
{
    abandonRun();
    mainView.closeClues();
    session.dbPath = folder;
    updateTitle();
    sweepLeftovers(folder);
    loadAllCards();
    for (int card = 1; card <= session.numCards; ++card)
        saveCardPosition(card);
    enableDatabaseControls();
    session.selectedCard = 1;
    updateTitle();
    tileCards();
    markCard(session.selectedCard);
    mainView.redrawBoard();
    write(option::lastDatabase, session.dbPath);
}

void openChosenFolder(const QString& folder)
{
    clearBoardLabels();
    resetFieldTable();
    resetCardTable();
    openFolder(folder);
}

void openLastDatabase()
{
    bool opened = false;
    ignoringErrors({[&] {
        showCardMode();
        openFolder(readFolder(option::lastDatabase));
        opened = true;
    }});
    if (opened)
        return;
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s,
                              u"Unable to open Database. It may be corrupt or removed."_s);
}

void enableDatabaseControls()
{
    session.menu.menuItemState[fileMenu][printLine] = u"Show"_s;
    session.board.SelectBox.visible = true;
    for (int heading = 1; heading <= 3; ++heading)
        session.menu.MenuTop[heading].enabled = true;
    for (ControlState* control : {&session.window.refreshCheck, &session.window.PicRef,
                                  &session.window.btnCards, &session.window.btnTable})
        control->enabled = true;
    mainView.showControls();
}

void tileCards()
{
    const int columns = int(std::lround(std::sqrt(double(session.numCards))));
    const double dx = std::min(session.board.width / (columns + 1), session.box[1].width + tileGap);
    const double dy = std::min(session.board.height / (columns + 2), session.box[1].height + tileGap);
    for (int card = 1; card <= session.numCards; ++card) {
        const int column = (card - 1) % columns;
        const int row = (card - 1) / columns;
        session.box[card].left = session.box[0].left + column * dx;
        session.box[card].top = session.box[0].top + row * dy;
        session.cardStack.bringToFront(card);
    }
}
