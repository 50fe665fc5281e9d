// The window that a new dialog or box belongs to. Without one, some desktops let it get lost behind the
// others.
#pragma once

class QWidget;

/// The open dialog that is uppermost, else the active window, else the main window; null while there is none.
/// `dialog` itself, floating windows and lists never count.
QWidget* owningWindow(const QWidget* dialog = nullptr);
