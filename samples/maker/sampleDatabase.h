// Makes a sample database: the folder with its description, and the record, picture and sound of each card.

#pragma once

#include "cardTable.h"

#include <QDir>

/// Fills the folder `outFolder`/title of the table through the session and the program's own writers; cards
/// that lie there from an earlier run are removed first. The drawings that the table names are read
/// from `drawings`, with its folders pictures, grounds and boards; cards of a table without a Picture column
/// are drawn as monsters. The same table gives the same bytes every time. Throws std::runtime_error for what
/// can't be drawn, and RuntimeError or a message of `desktop` for what can't be written.
void writeSampleDatabase(const CardTable& table, const QDir& drawings, const QString& outFolder);
