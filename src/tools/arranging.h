// Tidying the board at a stroke: six layouts, and the small preview of each.
#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

#include <array>

/// "Top", "Bottom", "Left", "Right", "Randomly", "Tiled", in the order of the list.
QStringList arrangements();

/// Lays all cards out by the word; any other word does nothing. Each card comes to the front in turn.
void arrangeCards(const QString& word);

/// Where the preview's six small shapes stand, in pixels of the dialog. Another word gives those of "Top".
std::array<QPointF, 6> arrangementPreview(const QString& word);
