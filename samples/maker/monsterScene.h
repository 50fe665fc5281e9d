// The scene behind a little monster: a plain in a pale tint of its coat, with distant shapes that match its
// body. The card's colour then shows the coat from across the room, and the scene contains no information
// that is not on the card.

#pragma once

#include <QColor>
#include <QPainter>
#include <QString>

/// Fills the picture with the scene for a monster of that body and coat; an unknown body gives a bare plain.
void drawScene(QPainter& painter, const QString& body, const QColor& coat);
