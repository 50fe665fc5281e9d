// Names of any length in a place of a few lines.
#pragma once

#include <QFont>
#include <QString>

/// The text broken into at most `lines` lines of `width` pixels, between words where it can be; of one that
/// is still too long, the middle of the last line is left out.
QString textInLines(const QString& text, const QFont& font, int width, int lines);
