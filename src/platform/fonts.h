// The fonts named in the design, with substitutes for those that aren't installed.
#pragma once

#include <QFont>
#include <QString>

/// The font of that name or, for "Comic Sans MS" and "Arial", a substitute of the same width.
QFont namedFont(const QString& family, double points);
