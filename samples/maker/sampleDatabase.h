// Writes a sample database: the folder with its description, and the record, picture and sound of each card.

#pragma once

#include "cardTable.h"

/// Makes the folder `outFolder`/title of the table; cards that lie there from an earlier run are replaced.
/// Pictures named in the table are read from `svgFolder`; cards of a table without a Picture column are drawn
/// as monsters. The same table gives the same bytes every time. Throws std::runtime_error when anything can't
/// be made.
void writeSampleDatabase(const CardTable& table, const QString& svgFolder, const QString& outFolder);
