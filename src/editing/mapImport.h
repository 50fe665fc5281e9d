// A map under the cards: a picture of the pupil's choice becomes the board's background.
#pragma once

/// Asks for a picture and lays it under the cards. One that can't be opened is refused, and the old one
/// stays.
void layMapUnderCards();
