// The cards without a mouse, for those who need it: what keys do on the board.
#pragma once

/// Whether keys do anything: while assistive technology is running, or where the settings ask for it.
bool boardHasKeys();

/// Makes the present card the selected one, or the first one that shows; nothing on an empty board.
void selectPresentCard();

/// Arrows walk from card to card, and with Shift move the card; Return opens it, Space plays its sound,
/// Delete drops it on the bin if the bin is shown. `key` is a Qt::Key. False for any other key.
bool pressBoardKey(int key, bool shift);
