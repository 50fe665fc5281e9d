// What a pupil looks for: up to three conditions of field, word and value, and their test on one card.
#pragma once

#include <QString>
#include <QStringList>

/// The text in capitals, unless the teacher wants case to count. Its length never changes.
QString adjustCase(const QString& text);

/// The text without every character that is not in "0123456789+-.".
QString filterNumeric(const QString& text);

/// The comparison words for a field type, in the order of the list.
QStringList comparisonWords(const QString& fieldType);

/// Whether condition `row` (0..2) of session.findRow holds for the card. A missing word holds for none.
bool testCondition(int row, int card);

/// "field word value " as the titles of a search tell condition `row`, with the blank at the end.
QString conditionText(int row);
