// The one drawing of a chart, for the screen, the clipboard and paper.
#pragma once

#include "platform/chartLayout.h"

#include <QColor>

class QImage;
class QPainter;

struct ChartLook {
    QFont font; // of the labels; the titles are larger
    QColor ink;
    QColor paper;
    QColor grid;
    QColor curve;
    std::array<QColor, chartColours> fills;
};

/// Draws the chart with its top left corner at the painter's origin.
void paintChart(QPainter& painter, const ChartLayout& layout, const ChartLook& look);

/// The chart as a picture of `size` pixels times `ratio`.
QImage chartPicture(const Chart& chart, QSize size, double ratio, const ChartLook& look);
