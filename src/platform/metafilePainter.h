// The device on which libwmf draws: each of its calls is one of a QPainter's.
#pragma once

#include <QImage>
#include <QList>

class QPainter;
struct _wmfAPI;

/// What the calls find at their library instance's `user_data`.
struct MetafileDevice {
    QPainter* painter = nullptr;
    QList<QImage> bitmaps; // that the metafile has in it
    int records = 0;       // played so far
};

/// Sets every call of the library to this device; for the library's option `function`.
void connectMetafilePainter(_wmfAPI* library);
