// A card's place on the board, the frame around the selected card, and finding a free place.
#pragma once

/// Stores the card's place in its position field, in memory only.
void saveCardPosition(int card);

/// Moves the card to the place in its position field, or to 0, 0 when that is empty.
void placeCard(int card);

/// Moves the card to a random place on the board below the menu, with up to twenty attempts to overlap no
/// other card. The last place is kept, free or not.
void placeCardAtRandom(int card);

/// True when another visible card is less than this card's width and height away. False after an error.
bool cardOverlaps(int card);

/// Puts SelectBox around the card.
void markCard(int card);
