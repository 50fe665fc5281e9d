// A picture dropped on a card, in the editor or in the table.
#pragma once

#include <QImage>

/// The picture in a file, with no more pixels than `Picture1` can show. Raises what readPicture() does.
QImage readDroppedPicture(const QString& path);

/// Paints the picture into `Picture1`, stretched to its full size; proportions are not kept.
void paintDroppedPicture(const QImage& dropped);
