// The bin on the board, and the deletion of a card that is dropped in it.
#pragma once

#include <QString>

/// Changes to the cards and shows the bin behind them, wholly on the board.
void showBin();

/// Whether the card's centre lies within the bin's rectangle, with the bin in view.
bool liesOnBin(int card);

/// Removes the files of the card with that identity and loads the folder again; then scatters the cards when
/// the teacher wants that. Errors are passed over: a card whose files stay comes back with the reload.
void deleteCard(const QString& cardId);
