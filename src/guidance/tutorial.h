// Offering to install the tutorials where one can't be started. Plain starting is in controls/dialogParts.
#pragma once

#include <QString>

/// Starts the tutorial of that name. If it can't be started, offers the tutorials.
void watchTutorial(const QString& tutorial);

/// Asks whether to install the tutorials, and does so on Yes.
void offerTutorials();
