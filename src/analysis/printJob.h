// Getting a drawing onto paper: the current printer is asked whether it takes a job, everything is drawn, and
// only then does the job begin.
#pragma once

#include "platform/page.h"

/// The name of the printer that prints everything: the one that was chosen, else the computer's own; empty
/// when there is none.
QString currentPrinter();

enum class PaperShape { portrait, landscape };

/// One job of that title on the current printer or, when the pupil has chosen that, a PDF file in a place
/// that is asked for. Meanwhile the pointer is the hourglass. A printer that takes no jobs, or any error
/// while drawing, is shown in the box "Printer Problem", and nothing is printed.
void printOut(const QString& title, PaperShape shape, const PageDrawing& draw);

/// The sheet on which a printout of that shape would come without a printer's answer.
QSizeF usualSheetFor(PaperShape shape);
