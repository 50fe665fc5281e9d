// The plain find run: card after card slides up when it matches and down when it doesn't.
#pragma once

#include <QString>

/// Whether the card is found by session.findRow under the two joining words, taken together as one text
/// ("  ", "and ", "orand", …). A text that is no rule finds nothing.
bool isFound(const QString& joined, int card);

/// Whether `joined` is one of the rules.
bool isFindRule(const QString& joined);

/// Writes and places the search as a sentence at the top of the board.
void showSearchTitle();

/// One step of the run: counts a found card and slides it to a quarter of the board's height, any other one
/// to the bottom edge. A card not found stays where its flight left it.
void moveCardFound(int card, bool found);

/// The whole run over all cards, from the title to session.foundCount.
void runFind();
