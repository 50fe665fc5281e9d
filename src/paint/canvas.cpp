#include "paint/canvas.h"

#include "paint/raster.h"
#include "platform/fonts.h"
#include "platform/stretching.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace {

constexpr double fontPoints = 14.25;
constexpr int fontPixels = 19; // the same at 96 dpi

} // namespace

QFont canvasFont()
{
    QFont font = namedFont(QStringLiteral("Arial"), fontPoints);
    font.setPixelSize(fontPixels);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

Canvas::Canvas(QSize size)
    : image(size, QImage::Format_RGB32)
{
    image.fill(Qt::white);
}

void Canvas::line(QPointF from, QPointF to)
{
    strokeLine(image, from, to, penWidth, foreColour);
    pen = to;
}

void Canvas::box(QPointF corner, QPointF opposite)
{
    strokeBox(image, corner, opposite, penWidth, foreColour);
    pen = opposite;
}

void Canvas::filledBox(QPointF corner, QPointF opposite)
{
    const QRect area = QRect(corner.toPoint(), QSize(1, 1)) | QRect(opposite.toPoint(), QSize(1, 1));
    QPainter(&image).fillRect(area, QColor(foreColour));
    pen = opposite;
}

void Canvas::circle(QPointF centre, double radius, double aspect)
{
    const QSizeF radii(aspect > 1 ? radius / aspect : radius, aspect > 1 ? radius : radius * aspect);
    if (fillStyle == FillStyle::solid && radius > 0)
        fillEllipse(image, centre, radii, fillColour);
    strokeEllipse(image, centre, radii, penWidth, foreColour);
    pen = centre;
}

void Canvas::pset(QPoint at)
{
    if (image.valid(at))
        image.setPixel(at, foreColour);
    pen = at;
}

QRgb Canvas::point(QPoint at) const { return image.valid(at) ? image.pixel(at) : 0; }

void Canvas::paintPicture(const QImage& picture, const QRect& target)
{
    QPainter painter(&image);
    painter.fillRect(target, Qt::white);
    if (!picture.isNull())
        painter.drawImage(target.topLeft(), stretched(picture, target.size()));
}

void Canvas::print(const QString& text)
{
    const QFont font = canvasFont();
    const QFontMetricsF metrics(font);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(QColor(foreColour));
    painter.drawText(QPointF(pen.x(), pen.y() + metrics.ascent()), text);
    pen = QPointF(0, pen.y() + metrics.height());
}

double Canvas::textWidth(const QString& text) const
{
    return QFontMetricsF(canvasFont()).horizontalAdvance(text);
}

double Canvas::textHeight() const { return QFontMetricsF(canvasFont()).height(); }
