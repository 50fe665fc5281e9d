#include "store/opening.h"

#include "board/labels.h"
#include "board/mode.h"
#include "board/places.h"
#include "core/screen.h"
#include "core/session.h"
#include "core/title.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/wholeFile.h"
#include "store/loading.h"
#include "store/settings.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int fileMenu = 0;
constexpr int printLine = 2;
constexpr int tileGap = 10;

const QString lastSection = QStringLiteral("Last DB");
const QString lastKey = QStringLiteral("Path");

} // namespace

void openFolder(const QString& folder)
{
    session.animationStopped = true; // a run that yields to us would let these cards fly to others' places
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
    screen.redrawBoard();
    writeSetting(settingsFile(), lastSection, lastKey, session.dbPath);
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
        openFolder(readSetting(settingsFile(), lastSection, lastKey, {}));
        opened = true;
    }});
    if (opened)
        return;
    desktop.beep();
    desktop.showMessage(MessageIcon::stop, QStringLiteral("Error"),
                        QStringLiteral("Unable to open Database. It may be corrupt or removed."));
}

void enableDatabaseControls()
{
    session.menuItemState[fileMenu][printLine] = QStringLiteral("Show");
    session.SelectBox.visible = true;
    for (int heading = 1; heading <= 3; ++heading)
        session.MenuTop[heading].enabled = true;
    for (ControlState* control :
         {&session.refreshCheck, &session.PicRef, &session.btnCards, &session.btnTable})
        control->enabled = true;
    screen.showControls();
}

void tileCards()
{
    const int columns = int(std::lround(std::sqrt(double(session.numCards))));
    const double dx = std::min(session.boardWidth / (columns + 1), session.box[1].width + tileGap);
    const double dy = std::min(session.boardHeight / (columns + 2), session.box[1].height + tileGap);
    for (int card = 1; card <= session.numCards; ++card) {
        const int column = (card - 1) % columns;
        const int row = (card - 1) / columns;
        session.box[card].left = session.box[0].left + column * dx;
        session.box[card].top = session.box[0].top + row * dy;
        session.cardStack.bringToFront(card);
    }
}
