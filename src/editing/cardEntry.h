// Entering a card's data: the editor's initial content, what may be typed, and storing it after OK.
#pragma once

#include <QString>

/// Selects the card and fills the editor's controls from its present files. A missing picture is reported;
/// the other controls are still filled. Raises 9 for a card outside the tables.
void fillEditor(int card);

/// The text cut to the width of a box, measured in the form's own font; beeps when something is cut.
QString fittingValue(const QString& text);

/// The text without the characters that field f doesn't accept: a field of type "123" accepts digits and
/// points.
QString allowedValue(int f, const QString& text);

/// OK in the editor: writes record and picture of the selected card as writeEditedCard() does, and the last
/// recording as its sound when that is wanted and there is one; redraws its face, sets the answer "OK" and
/// reloads all cards; a message says when another workstation's version was kept. False when the card can't
/// be written, after an error box: the editor then stays open, so that nothing that was typed is lost.
bool keepCard(bool withRecording = false);

/// "Add Card...": puts a new card on the board and opens it in the editor; Cancel removes it again. A full
/// database gets no new card: the board is shown.
void addCard();
