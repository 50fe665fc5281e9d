// Colours as the settings spell them.
#pragma once

#include <QColor>
#include <QString>

/// The colour that a text names: a decimal number with red in the low byte ("255" is red, "16711680" blue),
/// or the same number as "&H...". With the high bit set it is a colour of the desktop ("&H8000000F" is the
/// face of buttons). Any other text is black.
QColor colourOf(const QString& text);

/// The colour as a decimal number, as colourOf() reads it.
QString colourValue(const QColor& colour);
