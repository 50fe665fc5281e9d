// Fonts that the design names, with what stands in for one that isn't installed.
#pragma once

#include <QFont>
#include <QString>

/// The font of that name; where it is missing, a font that is as wide as it ("Comic Sans MS", "Arial").
QFont namedFont(const QString& family, double points);
