// Fitting names of any length into a few lines.
#pragma once

#include <QFont>
#include <QString>

/// The text broken into at most `lines` lines of `width` pixels, between words where possible. If it is still
/// too long, the middle of the last line is elided.
QString textInLines(const QString& text, const QFont& font, int width, int lines);
