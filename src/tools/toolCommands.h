// The commands of the card tools, from the menu's click to the end of the run.
#pragma once

void sortCommand();
void groupCommand();
void arrangeCommand();
void findCommand();

/// Tells the number of cards that the last find has found.
void reportFound();
