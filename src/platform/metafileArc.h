// The ends of a metafile's arcs, pies and chords, as the file has them.
#pragma once

#include <QByteArray>
#include <QPointF>

#include <optional>

struct ArcEnds {
    QPointF first; // from here against the clock, as seen on the sheet, to the other
    QPointF last;
};

/// The ends that the record tells which stops at that byte of the file, on the sheet on which its ellipse's
/// corners lie at `corner` and `opposite`. None when no such record stops there, or its ellipse is flat.
std::optional<ArcEnds> arcEndsOf(const QByteArray& file, qsizetype recordEnd, QPointF corner,
                                 QPointF opposite);
