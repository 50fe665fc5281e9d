// Stretching pictures.
#pragma once

#include <QImage>

/// The picture stretched to that size with smooth filtering; its proportions are not kept.
QImage stretched(const QImage& picture, const QSize& size);
