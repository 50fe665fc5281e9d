// Stretching pictures.
#pragma once

#include <QImage>

/// The picture stretched to that size, whatever its proportions, smoothly.
QImage stretched(const QImage& picture, const QSize& size);
