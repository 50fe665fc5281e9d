// What a metafile must be before libwmf is trusted with it.
#pragma once

#include <QByteArray>

inline constexpr quint32 placeableKey = 0x9AC6CDD7;

/// The metafile with a header that asks for no more memory than its longest record takes. Empty when the
/// headers make no sense or a record doesn't end within the file: the library may loop on those.
QByteArray checkedMetafile(const QByteArray& file);
