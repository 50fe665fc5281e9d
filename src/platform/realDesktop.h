// The real desktop: Qt's dialogs, clipboard, printers and folders behind the seam.
#pragma once

/// Sets every function of `desktop`. Needs the QApplication.
void installDesktop();
