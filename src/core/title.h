// The window's title, which tells the open database and the number of its cards.
#pragma once

#include <QString>

/// "Release 1.0.0", as the splash shows it.
QString releaseName();

/// " Release 1.0 (Build 0)", as titles end.
QString titleEnding();

/// The title while no database is open.
QString titleWithoutDatabase();

/// Rebuilds session.title for the open database and shows it.
void updateTitle();

/// Sets session.title to `text` and shows it.
void setTitle(const QString& text);
