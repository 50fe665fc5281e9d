// The conditions of a search, up to three, each of field, word and value, and their test on one card.
#pragma once

#include <QString>
#include <QStringList>

/// The text in capitals, unless case-sensitive comparison is set. Its length doesn't change.
QString adjustCase(const QString& text);

/// The text without every character that is not in "0123456789+-.".
QString filterNumeric(const QString& text);

/// The comparison words for a field type, in the order of the list.
QStringList comparisonWords(const QString& fieldType);

/// Whether the card meets condition `row` (0..2) of session.findRow. No card meets one without a word.
bool testCondition(int row, int card);

/// Condition `row` in the title of a search: "field word value ", including the blank at the end.
QString conditionText(int row);
