// Reports: a sentence with marked fields, filled in once for each card.
//
// A field is marked by its name between "<<" and ">>". Anything else in those brackets is plain text.
#pragma once

#include <QString>

/// The mark of a field in a template.
QString fieldTag(const QString& fieldName);

/// Appends a line for each card to `report`: the template with the card's values in place of the tags, a
/// blank, and CR LF.
///
/// Each field is looked for from the first character on, field after field, and after a match the search goes
/// on at the next character. So a value that holds the tag of a later field is filled in turn, and one that
/// holds its own is filled again and again. Raises 6 when a search gets beyond character 32,767; `report`
/// then has the lines of the cards before.
void appendReport(const QString& reportTemplate, QString& report);

/// The report under its dated heading, as it is printed.
QString reportToPrint(const QString& date, const QString& report);
