// The desktop's chooser of files for pictures: shows the one that is marked.
#pragma once

#include <QString>

/// The chosen file, empty when the dialog was cancelled. The preview is read beside the session's thread, so
/// that a large picture or a slow share never holds the window.
QString choosePictureFile(const QString& caption, const QString& startFolder, const QString& filter);
