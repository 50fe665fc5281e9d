#include "core/startValues.h"

#include "core/menu.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/values.h"

namespace {

constexpr double selectMargin = 6; // how much wider and higher than a card its frame is

void clearDatabase()
{
    session.databaseStatus = QStringLiteral("RW");
    session.backgroundPicture = QStringLiteral("none");
    session.openMenuIndex = -1;
    session.numCards = 0;
    session.maxCards = 99;
    session.numFields = 3;
    session.maxFields = 12;
    session.cardWidth = 80;
    session.cardHeight = 60;
    session.SelectBox.width = session.cardWidth + selectMargin;
    session.SelectBox.height = session.cardHeight + selectMargin;
    resetCardTable();
    resetFieldTable();
}

} // namespace

void setControlsAtStart()
{
    for (int heading = 1; heading <= 3; ++heading)
        session.MenuTop[heading].enabled = false;
    session.btnCards.pressed = true;
    for (ControlState* control :
         {&session.btnCards, &session.btnTable, &session.refreshCheck, &session.PicRef})
        control->enabled = false;
}

void setStartValues()
{
    // Chance needs no seed here: every number of desktop.random is fresh.
    session.twipsPerPixelX = desktop.twipsPerPixelX();
    session.twipsPerPixelY = toInteger(desktop.twipsPerPixelY());
    session.sortDirection = QStringLiteral("ABC");
    clearDatabase();
    fillMenuTables();
    session.menuItemState[0][2] = QStringLiteral("IfSelect"); // nothing to print yet
    session.animationSpeed = 1;
    session.printScale = 0.08;
}
