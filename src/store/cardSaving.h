// Writing the files of a card so that nobody's work is lost. What somebody else has written since the card
// was loaded, and what is damaged, is kept before it is replaced (store/keptVersions); what couldn't be read
// is not replaced.
#pragma once

/// Takes the values of the card from `DataBox` and writes its record; then the card's tooltip is its label.
/// A failure is told in the error box, 75 when there is a record that couldn't be read.
void saveCardValues(int card);

/// Writes what `Picture1` shows as the card's picture, unless cards are strips. A failure is told in the
/// error box.
void saveCardPicture(int card);

/// Writes the card as the editor has it: its record, and its picture when that has changed since it was
/// opened or there is none. A damaged record stays while nothing has been filled in. True when somebody
/// else's version was kept. Raises what stands in the way: then what has not been written yet stays as it
/// was, also in the session.
bool writeEditedCard(int card);
