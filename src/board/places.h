// Where a card lies on the board, the frame that marks one, and finding a free place.
#pragma once

/// Notes the card's place in its position field; memory only.
void saveCardPosition(int card);

/// Puts the card where its position field says; without a place it goes to 0, 0.
void placeCard(int card);

/// Puts the card at a random place on the board below the menu, twenty times anew while it overlaps another.
/// The last place stands, free or not.
void placeCardAtRandom(int card);

/// True when another visible card lies less than this card's width and height away. An error makes it false.
bool cardOverlaps(int card);

/// Frames the card with SelectBox.
void markCard(int card);
