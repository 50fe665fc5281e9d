// The menu as state: what each heading offers, which one is open. The windows of the menu follow it.
#pragma once

#include <QString>

inline constexpr int lastHeading = 3;  // 0 File, 1 Card, 2 Data, 3 Help
inline constexpr int lastMenuLine = 5; // of the pull-down panel, counted from 0

/// "File", "Card", "Data" or "Help".
QString headingText(int menu);

/// Gives every heading its lines, each in state "Show".
void fillMenuTables();

/// Opens the heading's lines. A line is enabled when its state is exactly "Show" at this moment.
void openMenu(int menu);

/// Closes the menu and hides the frame about the selected card.
void closeMenu();

/// A click on the heading opens it; on the open one, closes it again and leaves the frame.
void clickHeading(int menu);

/// The mouse came over the heading: an open menu slides there.
void hoverHeading(int menu);
