// The plain find run: card after card slides up when it matches and down when it doesn't.
#pragma once

#include <QString>

/// Whether the card matches session.findRow. `joined` is the text of both joining words in a row ("  ", "and
/// ", "orand", …); an unknown one matches nothing.
bool isFound(const QString& joined, int card);

/// Whether `joined` is a known combination.
bool isFindRule(const QString& joined);

/// Shows the search as a sentence at the top of the board.
void showSearchTitle();

/// One step of the run: counts a found card and slides it to a quarter of the board's height, any other one
/// to the bottom edge. A card that was not found stays where its flight ended.
void moveCardFound(int card, bool found);

/// The whole run: shows the title, moves every card and sets session.foundCount.
void runFind();
