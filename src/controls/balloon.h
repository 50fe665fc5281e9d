// The tool-tip balloon: one hint at a time, beside the mouse pointer.
#pragma once

#include <QString>

class QWidget;

/// Shows the hint beside the mouse pointer, in place of the last one. It disappears with the window, at a
/// click or a key, and after a while.
void showHint(QWidget& owner, const QString& text);
void endHint();
/// A hint that shows a pupil's text as it was typed, mark-up characters included; empty for an empty text.
QString plainHint(const QString& text);
/// The visible hint, empty when there is none.
QString hintInView();

/// The widget shows the hint whenever the mouse moves over it.
void giveHint(QWidget& widget, const QString& text);
