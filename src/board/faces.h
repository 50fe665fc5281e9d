// Card faces: the small picture of a card that lies on the board and stands in the table.
#pragma once

/// Draws the card's face on `shrinkdummy`, at that surface's measures: the picture in `Picture1` with the
/// card's label over it, or the label alone on a strip. The card takes face, measures and tooltip from it.
void drawCardFace(int card);

/// Gives every card the measures of session.cardSize and draws all faces anew from their picture files. A
/// size other than 0, 1 and 2 leaves the measures as they are.
void resizeAllCards();
