// Hard-edged shapes on a picture of 32 bits. A pixel is in a shape when its middle is.
//
// Qt's own painting without smoothing leaves out dots, corners and ellipses without a radius, and its strokes
// of even width lie to one side; these shapes are the same all round.
#pragma once

#include <QImage>
#include <QPointF>

/// A line with round ends, `width` pixels wide.
void strokeLine(QImage& image, QPointF from, QPointF to, int width, QRgb colour);
/// The outline of a rectangle; its middle runs through the corners.
void strokeBox(QImage& image, QPointF corner, QPointF opposite, int width, QRgb colour);
/// The outline of an ellipse; with radii of 0 a dot.
void strokeEllipse(QImage& image, QPointF centre, QSizeF radii, int width, QRgb colour);
void fillEllipse(QImage& image, QPointF centre, QSizeF radii, QRgb colour);
