// The window's title, which names the open database and the number of its cards.
#pragma once

#include <QString>

/// "Release 1.0.0", shown on the splash.
QString releaseName();

/// "Release 1.0 (Build 0)" and a second line that describes the program.
QString releaseWithComment();

/// " Release 1.0 (Build 0)", the end of every title.
QString titleEnding();

/// The title while no database is open.
QString titleWithoutDatabase();

/// Rebuilds session.window.title for the open database and shows it.
void updateTitle();

/// Sets session.window.title to `text` and shows it.
void setTitle(const QString& text);
