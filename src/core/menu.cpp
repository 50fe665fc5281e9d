#include "core/menu.h"

#include "core/mainView.h"
#include "core/session.h"

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Heading {
    QString text;
    std::vector<QString> lines;
};

const std::array<Heading, lastHeading + 1>& headings()
{
    static const std::array<Heading, lastHeading + 1> table{{
        {u"File"_s, {u"New"_s, u"Open..."_s, u"Print..."_s, u"Exit"_s}},
        {u"Card"_s,
         {u"Add Card..."_s, u"Delete Card"_s, u"Design Cards..."_s, u"Arrange Cards..."_s, u"Find..."_s}},
        {u"Data"_s, {u"Sort..."_s, u"Group..."_s, u"Make Graph..."_s, u"Report..."_s, u"Statistics..."_s}},
        {u"Help"_s, {u"Help"_s}},
    }};
    return table;
}

} // namespace

QString headingText(int menu) { return headings().at(menu).text; }

void fillMenuTables()
{
    for (int menu = 0; menu <= lastHeading; ++menu) {
        const auto& lines = headings()[menu].lines;
        session.menu.menuLastItem[menu] = int(lines.size()) - 1;
        for (int line = 0; line < int(lines.size()); ++line) {
            session.menu.menuItemCaption[menu][line] = lines[line];
            session.menu.menuItemState[menu][line] = u"Show"_s;
        }
    }
}

void openMenu(int menu)
{
    session.menu.openMenuIndex = menu;
    for (int line = 0; line <= session.menu.menuLastItem[menu]; ++line)
        session.menu.menuCaption[line].enabled = session.menu.menuItemState[menu][line] == u"Show"_s;
    session.menu.MenuHolder.visible = true;
    mainView.showControls();
}

void closeMenu()
{
    session.menu.openMenuIndex = -1;
    session.menu.MenuHolder.visible = false;
    session.board.SelectBox.visible = false;
    mainView.showControls();
    mainView.redrawBoard();
}

void clickHeading(int menu)
{
    if (menu != session.menu.openMenuIndex) {
        openMenu(menu);
    } else if (session.menu.MenuHolder.visible) {
        session.menu.MenuHolder.visible = false;
        session.menu.openMenuIndex = -1;
        mainView.showControls();
    }
}

void hoverHeading(int menu)
{
    if (session.menu.MenuHolder.visible)
        openMenu(menu);
}
