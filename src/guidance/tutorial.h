// Starting a video tutorial, or offering to install the tutorials.
#pragma once

#include <QString>

/// Starts the tutorial of that name. If it can't be started, offers the tutorials.
void watchTutorial(const QString& tutorial);

/// Asks whether to install the tutorials, and does so on Yes.
void offerTutorials();
