// The tool-tip balloon: one hint beside the mouse pointer, whatever it is about.
#pragma once

#include <QString>

class QWidget;

/// Shows the hint beside the mouse pointer; the last one goes. It goes by itself when the window does, when
/// something is clicked or typed, and after a while.
void showHint(QWidget& owner, const QString& text);
void endHint();
/// The hint that shows a pupil's text as it was typed, whatever mark-up it looks like; none for an empty one.
QString plainHint(const QString& text);
/// The hint in view, empty when there is none.
QString hintInView();

/// From now on the widget shows the hint whenever the mouse moves over it.
void giveHint(QWidget& widget, const QString& text);
