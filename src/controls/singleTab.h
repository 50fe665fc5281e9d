// A page under a single tab, which answers a press although there is nothing to turn to.
#pragma once

#include <QTabWidget>

/// Its tab can be pressed by assistive technology as well, which counts as a click on it: for Qt nothing
/// changes when the tab in front is pressed, and it gives no signal.
class SingleTab : public QTabWidget {
public:
    SingleTab();
};
