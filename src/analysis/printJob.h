// Getting a drawing onto paper: the current printer is asked whether it takes a job, everything is drawn, and
// only then does the job begin.
#pragma once

#include "platform/page.h"

/// The name of the printer that prints everything: the one that was chosen, else the computer's own; empty
/// when there is none.
QString currentPrinter();

enum class PaperShape { portrait, landscape };

/// Prints one job of that title on the current printer or, if the pupil has chosen that, asks for a place and
/// saves a PDF file. Meanwhile the pointer is the hourglass. A printer that takes no jobs, or any error
/// while drawing, is shown in the box "Printer Problem", and nothing is printed.
void printOut(const QString& title, PaperShape shape, const PageDrawing& draw);

/// The sheet for a printout of that shape when the printer doesn't say which one it has.
QSizeF usualSheetFor(PaperShape shape);
