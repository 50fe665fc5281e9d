// Copying a picture that is see-through in one colour.
#pragma once

#include <QImage>

/// Copies `size` pixels of `source`, from its pixel `from` on, to `target` at `at`, all but those of the
/// colour `clear`. What lies outside either picture is left out. Both pictures have 32 bits.
void transparentBlit(QImage& target, QPoint at, QSize size, const QImage& source, QPoint from, QRgb clear);
