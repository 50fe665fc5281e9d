// A picture dropped on a card, in the editor or in the table.
#pragma once

#include <QImage>

/// Paints the picture into `Picture1`, stretched to its full width and height whatever its proportions.
void paintDroppedPicture(const QImage& dropped);
