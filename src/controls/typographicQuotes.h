// Boxes for texts that the files hold between double quotes.
#pragma once

class QLineEdit;

/// A double quote that is typed, pasted or dropped becomes one of the typographic pair, as in a word
/// processor. Texts set by code stay as they are.
void takeTypographicQuotes(QLineEdit* box);
