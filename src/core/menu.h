// The menu's state: the lines of each heading, and which heading is open. The menu's widgets show it.
#pragma once

#include <QString>

inline constexpr int lastHeading = 3;  // 0 File, 1 Card, 2 Data, 3 Help
inline constexpr int lastMenuLine = 5; // of the pull-down panel, counted from 0

/// "File", "Card", "Data" or "Help".
QString headingText(int menu);

/// Fills in the lines of every heading, each in state "Show".
void fillMenuTables();

/// Opens the heading's lines. A line is enabled if its state is exactly "Show".
void openMenu(int menu);

/// Closes the menu and hides the frame around the selected card.
void closeMenu();

/// A click opens the heading, or closes it when it is open; the frame around the selected card then stays.
void clickHeading(int menu);

/// The mouse has entered the heading: an open menu moves there.
void hoverHeading(int menu);
