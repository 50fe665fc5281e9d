// Copying texts for other programs.
#pragma once

#include <QString>

/// Puts the text on the clipboard and says so.
void copyText(const QString& text);
