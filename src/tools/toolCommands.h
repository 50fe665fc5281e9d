// The commands of the card tools, from the menu's click to the end of the run.
#pragma once

void sortCommand();
void groupCommand();
void arrangeCommand();
void findCommand();

/// Shows a box with the number of cards that the last find found.
void reportFound();
