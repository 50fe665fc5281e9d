// Numbers in text: how values, positions and file items are read and written.
#pragma once

#include <QString>
#include <QtGlobal>

/// The number that a text begins with: blanks and tabs are skipped, then sign, digits, one point and an
/// exponent are taken as far as they go ("12 cats" is 12). A text without one counts as 0, one too large for
/// a double is the largest double.
double leadingNumber(const QString& text);

/// The nearest 16-bit integer, halves to the even neighbour. Raises 6 outside -32768..32767.
qint16 toInteger(double number);

/// The number with up to 15 significant digits, without trailing zeros, with a point whatever the locale:
/// "0.5", "1E+15".
QString numberText(double number);

/// One half of a position string: the integer part, downwards, with at least four digits: "0123", "-0012".
QString positionText(double coordinate);
