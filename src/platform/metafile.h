// Windows metafiles (WMF): drawings of clip-art collections, played as smoothed pictures.
#pragma once

#include <QByteArray>
#include <QImage>

/// Whether the bytes begin as a metafile does, with or without the header that has its frame.
bool beginsAsMetafile(const QByteArray& file);

/// The drawing in its own proportions, just large enough to cover `size`, see-through where nothing is drawn.
/// Raises 481 when the file is no whole metafile or draws nothing.
QImage playMetafile(const QByteArray& file, QSize size);
