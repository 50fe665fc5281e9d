#include "window/startValues.h"

#include "core/menu.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/values.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double selectMargin = 6; // the frame is this much wider and higher than a card

void clearDatabase()
{
    session.databaseStatus = u"RW"_s;
    session.backgroundPicture = u"none"_s;
    session.menu.openMenuIndex = -1;
    session.numCards = 0;
    session.maxCards = 99;
    session.numFields = 3;
    session.maxFields = 12;
    session.cardWidth = 80;
    session.cardHeight = 60;
    session.board.SelectBox.width = session.cardWidth + selectMargin;
    session.board.SelectBox.height = session.cardHeight + selectMargin;
    resetCardTable();
    resetFieldTable();
}

} // namespace

void setControlsAtStart()
{
    for (int heading = 1; heading <= 3; ++heading)
        session.menu.MenuTop[heading].enabled = false;
    session.window.btnCards.pressed = true;
    for (ControlState* control : {&session.window.btnCards, &session.window.btnTable,
                                  &session.window.refreshCheck, &session.window.PicRef})
        control->enabled = false;
}

void setStartValues()
{
    // No random seed to set: desktop.random needs none.
    session.twipsPerPixelX = desktop.screen.twipsPerPixelX();
    session.twipsPerPixelY = toInteger(desktop.screen.twipsPerPixelY());
    session.sortDirection = u"ABC"_s;
    clearDatabase();
    fillMenuTables();
    session.menu.menuItemState[0][2] = u"IfSelect"_s; // printing starts disabled
    session.run.animationSpeed = 1;
    session.paper.printScale = 0.08;
}
