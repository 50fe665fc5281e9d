// Numbers in text: how values, positions and file items are read and written.
#pragma once

#include <QDate>
#include <QString>
#include <QtGlobal>

/// The number that a text begins with: blanks and tabs are skipped, then sign, digits, one point and an
/// exponent are read as far as they go ("12 cats" is 12). 0 for a text without a number, the largest double
/// for a number that is too large.
double leadingNumber(const QString& text);

/// The text with a point for every comma where the country writes 4,5, unchanged elsewhere: for what is
/// entered as a number, which a dropped comma would multiply by ten.
QString withDecimalPoints(const QString& text);

/// The nearest 16-bit integer, halves to the even neighbour. Raises 6 outside -32768..32767.
qint16 toInteger(double number);

/// The number with up to 15 significant digits, without trailing zeros, with a point whatever the locale:
/// "0.5", "1E+15".
QString numberText(double number);

/// One half of a position string: the number rounded down, with at least four digits: "0123", "-0012".
QString positionText(double coordinate);

/// The number in single precision. Raises 6 when it is too large for that.
float toSingle(double number);

/// A number of single precision with up to 7 significant digits: more would show what it isn't.
QString singleText(float number);

/// Rounded to that many places, halves upwards, also below zero: -2.345 to 2 places is -2.34. What is rounded
/// is the number as it is written, so that 2.345 is 2.35 although its nearest double lies below.
double roundedTo(double number, int places);

/// The date as the desktop writes it in short.
QString shortDateText(const QDate& date);
