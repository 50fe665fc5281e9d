// What a metafile must be before libwmf is trusted with it.
#pragma once

#include <QByteArray>

inline constexpr quint32 placeableKey = 0x9AC6CDD7;

/// Whether the headers make sense and every record ends within the file: on others the library may loop.
bool isWholeMetafile(const QByteArray& file);
