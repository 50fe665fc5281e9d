// Watching a video tutorial, or installing the tutorials when they aren't there.
#pragma once

#include <QString>

/// Starts the tutorial of that name. If it can't be started, asks whether the tutorials shall be installed.
void watchTutorial(const QString& tutorial);
