// A tab bar with one tab for assistive technology.
#pragma once

class QTabBar;

/// Makes a press by assistive technology count as a click on the bar's only tab. For Qt nothing changes when
/// the tab in front is pressed, and it gives no signal.
void pressableSingleTab(QTabBar& bar);
