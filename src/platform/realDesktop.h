// The desktop as it really is: Qt's dialogs, clipboard, printers and folders behind the seam.
#pragma once

/// Sets every function of `desktop`. Needs the QApplication.
void installDesktop();

/// Has the printing system asked beside everything else, since it may take its time; the first to ask
/// `desktop` for printers then gets that answer.
void askForPrintersEarly();
