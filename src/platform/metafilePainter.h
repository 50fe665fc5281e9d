// The device on which libwmf draws: each of its calls is one of a QPainter's.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

class QPainter;
struct _wmfAPI;

/// What the calls find at their library instance's `user_data`.
struct MetafileDevice {
    QPainter* painter = nullptr;
    QByteArray file;
    QList<QImage> bitmaps;     // that the metafile has in it; null when it is done with one
    qsizetype bitmapBytes = 0; // of those that it isn't done with
    double work = 0;           // done so far, about a nanosecond each
};

/// Above this much work a metafile is no picture for a card: the most crowded drawings take a tenth.
inline constexpr double mostMetafileWork = 1e9;

/// Sets every call of the library to this device; for the library's option `function`.
void connectMetafilePainter(_wmfAPI* library);
