// Filling in a card: what its editor shows at first, what may be typed, and what OK keeps.
#pragma once

#include <QString>

/// Makes the card the selected one and fills the editor's controls from it. A picture that is missing is
/// told, and the rest is filled all the same. Raises 9 for a card outside the tables.
void fillEditor(int card);

/// The text without what goes past the end of a box, measured in the form's own font; beeps when something
/// does.
QString fittingValue(const QString& text);

/// The text without the characters that field f refuses: a field of type "123" takes digits and points.
QString allowedValue(int f, const QString& text);

/// OK in the editor: writes record and picture of the selected card, draws its face, answers "OK" and reads
/// all cards again. A step that fails is passed over in silence; on the disk it leaves what was there.
void keepCard();

/// "Add Card...": a new card on the board, opened in its editor. With all the cards that a database holds it
/// only shows the cards. Cancel in the editor takes the card back.
void addCard();
