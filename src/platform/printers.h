// The printers of this computer, through the printing system CUPS. Every question is asked on another thread:
// a printing system may be slow, silent or gone.
#pragma once

#include "platform/desktop.h"

/// Lists the printers in advance, so that the first printerNames() need not wait.
void askForPrintersEarly();

/// Each waits two seconds at most; without an answer by then the result is empty.
QStringList printerNames();
QString defaultPrinterName();

/// See Desktop::Paper for both.
PrinterAnswer askPrinter(const QString& printer);
bool printOn(const QString& printer, const QString& title, const QByteArray& pdf);
