// Printing plain text on one page.
#pragma once

#include "platform/page.h"

/// Prints the text on the current printer, as one job of one page; what doesn't fit on it is left out. Lines
/// are as wide as a box of `boxWidth` twips, if that is no wider than the page less its margins. A new line
/// begins at a carriage return; line feeds are ignored. Every problem is shown in a box.
void thinkPrint(const QString& printText, double boxWidth);

/// The same drawn on the page.
void drawText(Page& page, const QString& printText, double boxWidth);
