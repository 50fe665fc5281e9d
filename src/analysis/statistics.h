// The figures of one field: what the statistics screen calculates and copies.
#pragma once

#include <QStringList>

/// The functions that a field of that type ("123" or any other) offers.
QStringList statisticsFunctions(const QString& fieldType);

/// The lines that the function adds to the roll of results (controls/paperRoll) for session.chosenField, each
/// but the last ending in CR LF; empty for no function. Raises 6 when the numbers add up to more than a
/// double holds.
QString statisticsResult(const QString& function);

/// The roll with its dated heading, as it is copied.
QString statisticsToCopy(const QString& date, const QString& roll);
