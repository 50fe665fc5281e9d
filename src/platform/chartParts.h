// What a chart consists of once it is laid out for a size: texts, lines, shapes, and the values for hints and
// screen readers.
#pragma once

#include <QFont>
#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <vector>

enum class ChartTextRole { title, axisTitle, label };

/// A line of text, centred across its direction on `anchor`, which stands at the share `align` of its length.
struct ChartText {
    QString text;
    ChartTextRole role = ChartTextRole::label;
    QPointF anchor;
    double align = 0.5; // 0: begins at the anchor, 1: ends there
    double angle = 0;   // degrees, clockwise
    double length = 0;
    double height = 0;
    bool onPaper = false; // with a small paper plate beneath

    /// What the text covers.
    QPolygonF area() const;
};

enum class ChartStroke { grid, axis, curve, leader };

struct ChartLine {
    QPolygonF points;
    ChartStroke stroke = ChartStroke::axis;
};

/// A filled shape with an outline. Neighbours differ in colour and in pattern.
struct ChartShape {
    QPainterPath path;
    int colour = 0;
    int pattern = 0; // 0 is plain
    int shade = 0;   // 1 lighter, -1 darker: the faces of a solid bar
};

/// One value of the chart as it can be pointed at and read out.
struct ChartMark {
    QString words;        // "red: 5"
    QPainterPath outline; // empty when it isn't in view
    QPainterPath reach;   // where it answers to the pointer

    QRectF place() const { return outline.boundingRect(); }
};

struct ChartLayout {
    QSizeF size;
    double scale = 1; // of fonts and strokes: larger on a large screen
    QRectF plot;
    std::vector<ChartLine> lines; // beneath the shapes
    std::vector<ChartShape> shapes;
    std::vector<ChartLine> linesAbove;
    std::vector<ChartText> texts;
    std::vector<ChartMark> marks;

    /// The number of the mark at that point, -1 for none.
    int markAt(QPointF point) const;
};

inline constexpr int chartColours = 8;
inline constexpr int chartPatterns = 5;

/// The size of a text of that role, as a multiple of the labels'.
double textSize(ChartTextRole role);
/// The font of a text of that role, for labels of that font.
QFont chartFont(const QFont& labels, ChartTextRole role, double scale);
