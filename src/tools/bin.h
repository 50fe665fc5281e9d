// The bin on the board, and the deletion of a card that is dropped in it.
#pragma once

#include <QString>

/// Switches to the cards and shows the bin behind them, entirely on the board.
void showBin();

/// Whether the bin is shown and contains the card's centre. Nothing lies on the bin of a read-only database.
bool liesOnBin(int card);

/// Removes the files of the card with that identity and loads the folder again; then scatters the remaining
/// cards if that option is set. Of several records of one identity only the one with that name is removed,
/// and picture and sound stay for the others. Errors are ignored: a card whose files couldn't be removed
/// reappears with the reload.
void deleteCard(const QString& cardId, const QString& recordName = {});
