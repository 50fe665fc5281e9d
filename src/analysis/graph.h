// From the wizard's answers to the chart on the main window, and from there to the clipboard.
#pragma once

/// Fills the chart from the group table, or a scattergram from its two fields, and shows it over the board.
/// When the numbers can't be drawn, a message box says so and the chart stays unchanged.
void drawGraph();

/// Puts the chart on the clipboard as a picture. A step that fails is skipped.
void copyGraph();
