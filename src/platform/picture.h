// The program's own pictures, sharp on every screen.
#pragma once

#include <QPixmap>
#include <QString>

/// The picture of that name ("sand") in the size given, in the pixels of the sharpest screen there is.
QPixmap picture(const QString& name, QSize size);

/// Where the picture lies, for icons and for the style sheet.
QString picturePath(const QString& name);
