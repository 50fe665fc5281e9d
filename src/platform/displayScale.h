// How much larger the program shows itself where the desktop doesn't: as large as the screen allows.
#pragma once

#include <QList>
#include <QSize>
#include <QString>

/// The factor for screens of these sizes. `setting` is a number from 0.5 to 8, which holds whatever the
/// screens are; anything else means: in steps of a quarter, so that the smallest screen keeps at least 1280 x
/// 700 of the program's own pixels, and never below 1.
double displayScale(const QList<QSize>& screens, const QString& setting);
