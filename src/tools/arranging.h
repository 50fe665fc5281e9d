// Six ways of arranging all cards at once, and the small preview of each.
#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

#include <array>

/// "Top", "Bottom", "Left", "Right", "Randomly", "Tiled", in the order of the list.
QStringList arrangements();

/// Lays all cards out in the named way; any other word does nothing. Each card comes to the front in turn.
void arrangeCards(const QString& word);

/// The places of the preview's six small shapes, in pixels of the dialog; those of "Top" for an unknown word.
std::array<QPointF, 6> arrangementPreview(const QString& word);
