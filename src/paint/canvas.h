// A drawing surface as the paint tools know it: a picture with a pen, a fill and the place of the pen.
//
// Nothing is smoothed: a pixel belongs to a stroke when its middle lies within half the pen's width of the
// line, and takes the pen's very colour. A flood fill thus meets hard edges and finds no gaps.
#pragma once

#include <QImage>
#include <QPointF>
#include <QString>

enum class FillStyle { solid, transparent };

class Canvas {
public:
    explicit Canvas(QSize size);

    QImage image; // RGB32, its size never changes
    QRgb foreColour = 0xFF000000;
    QRgb fillColour = 0xFF000000;
    int penWidth = 1; // pixels
    FillStyle fillStyle = FillStyle::transparent;
    QPointF pen; // where the last drawing ended

    /// A line with round ends; without a length a dot as wide as the pen.
    void line(QPointF from, QPointF to);
    /// The outline of the rectangle between two corners, which are sharp.
    void box(QPointF corner, QPointF opposite);
    /// The rectangle between two corners, both included, in the pen's colour.
    void filledBox(QPointF corner, QPointF opposite);
    /// An ellipse in the pen's colour, filled with the fill's when the style is solid. `radius` lies along
    /// the longer axis, `aspect` is height over width.
    void circle(QPointF centre, double radius, double aspect = 1);
    /// One pixel.
    void pset(QPoint at);
    /// The colour of a pixel, 0 outside the picture.
    QRgb point(QPoint at) const;
    /// The whole picture stretched to the rectangle, on white where it is transparent.
    void paintPicture(const QImage& picture, const QRect& target);
    /// Writes the text at the pen, whose place becomes the beginning of the next line.
    void print(const QString& text);
    double textWidth(const QString& text) const;
    double textHeight() const;
};

/// The font of every canvas, hard-edged, at its size in pixels.
QFont canvasFont();
