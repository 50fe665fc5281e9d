// The real desktop: Qt's dialogs, clipboard, printers and folders behind the seam.
#pragma once

/// Sets every function of `desktop`. Needs the QApplication.
void installDesktop();

/// Queries the printing system, which may be slow, on another thread. The first call for printers then uses
/// the result.
void askForPrintersEarly();
