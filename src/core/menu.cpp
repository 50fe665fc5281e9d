#include "core/menu.h"

#include "core/screen.h"
#include "core/session.h"

#include <array>
#include <vector>

namespace {

struct Heading {
    QString text;
    std::vector<QString> lines;
};

const std::array<Heading, lastHeading + 1>& headings()
{
    static const std::array<Heading, lastHeading + 1> table{{
        {QStringLiteral("File"),
         {QStringLiteral("New"), QStringLiteral("Open..."), QStringLiteral("Print..."),
          QStringLiteral("Exit")}},
        {QStringLiteral("Card"),
         {QStringLiteral("Add Card..."), QStringLiteral("Delete Card"), QStringLiteral("Design Cards..."),
          QStringLiteral("Arrange Cards..."), QStringLiteral("Find...")}},
        {QStringLiteral("Data"),
         {QStringLiteral("Sort..."), QStringLiteral("Group..."), QStringLiteral("Make Graph..."),
          QStringLiteral("Report..."), QStringLiteral("Statistics...")}},
        {QStringLiteral("Help"), {QStringLiteral("Help")}},
    }};
    return table;
}

} // namespace

QString headingText(int menu) { return headings().at(size_t(menu)).text; }

void fillMenuTables()
{
    for (int menu = 0; menu <= lastHeading; ++menu) {
        const auto& lines = headings()[size_t(menu)].lines;
        session.menuLastItem[menu] = int(lines.size()) - 1;
        for (int line = 0; line < int(lines.size()); ++line) {
            session.menuItemCaption[menu][line] = lines[size_t(line)];
            session.menuItemState[menu][line] = QStringLiteral("Show");
        }
    }
}

void openMenu(int menu)
{
    session.openMenuIndex = menu;
    for (int line = 0; line <= session.menuLastItem[menu]; ++line)
        session.menuCaption[line].enabled = session.menuItemState[menu][line] == QStringLiteral("Show");
    session.MenuHolder.visible = true;
    screen.showControls();
}

void closeMenu()
{
    session.openMenuIndex = -1;
    session.MenuHolder.visible = false;
    session.SelectBox.visible = false;
    screen.showControls();
    screen.redrawBoard();
}

void clickHeading(int menu)
{
    if (menu != session.openMenuIndex) {
        openMenu(menu);
    } else if (session.MenuHolder.visible) {
        session.MenuHolder.visible = false;
        session.openMenuIndex = -1;
        screen.showControls();
    }
}

void hoverHeading(int menu)
{
    if (session.MenuHolder.visible)
        openMenu(menu);
}
