// "Print...": the board, a card or the chart.
#pragma once

/// Asks what to print and on which printer, and prints it.
void printCommand();
