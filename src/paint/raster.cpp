#include "paint/raster.h"

#include <QRect>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// Colours the pixels within `bounds` whose middle is inside.
template <class Inside>
void colourWhere(QImage& image, const QRectF& bounds, QRgb colour, Inside inside)
{
    const QRect area = bounds.toAlignedRect() & image.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            if (inside(QPointF(x + 0.5, y + 0.5)))
                row[x] = colour;
        }
    }
}

QRectF grown(const QRectF& area, double by) { return area.normalized().adjusted(-by, -by, by, by); }

/// Where the middle of a pen lies that is asked for at a pixel: between four pixels when its width is even.
QPointF penMiddle(QPointF at, int width) { return width % 2 == 0 ? at : at + QPointF(0.5, 0.5); }

double squaredDistance(QPointF point, QPointF from, QPointF to)
{
    const QPointF along = to - from;
    const double length = QPointF::dotProduct(along, along);
    const double part =
        length > 0 ? std::clamp(QPointF::dotProduct(point - from, along) / length, 0.0, 1.0) : 0.0;
    const QPointF away = point - (from + part * along);
    return QPointF::dotProduct(away, away);
}

void strokeSegment(QImage& image, QPointF from, QPointF to, double halfWidth, QRgb colour)
{
    colourWhere(image, grown(QRectF(from, to), halfWidth), colour,
                [=](QPointF point) { return squaredDistance(point, from, to) <= halfWidth * halfWidth; });
}

/// So many pieces that none leaves the ellipse by more than a fiftieth of a pixel.
int piecesOfEllipse(double longRadius) { return 4 * std::max(2, int(std::ceil(4 * std::sqrt(longRadius)))); }

} // namespace

void strokeLine(QImage& image, QPointF from, QPointF to, int width, QRgb colour)
{
    strokeSegment(image, penMiddle(from, width), penMiddle(to, width), width / 2.0, colour);
}

void strokeBox(QImage& image, QPointF corner, QPointF opposite, int width, QRgb colour)
{
    const QRectF middle(penMiddle(corner, width), penMiddle(opposite, width));
    const QRectF outside = grown(middle, width / 2.0);
    const QRectF inside = outside.adjusted(width, width, -width, -width);
    colourWhere(image, outside, colour, [inside](QPointF point) {
        return inside.width() <= 0 || inside.height() <= 0 || !inside.contains(point);
    });
}

void strokeEllipse(QImage& image, QPointF centre, QSizeF radii, int width, QRgb colour)
{
    const QPointF middle = penMiddle(centre, width);
    const int pieces = piecesOfEllipse(std::max(radii.width(), radii.height()));
    const auto corner = [=](int piece) {
        const double angle = 2 * std::numbers::pi * piece / pieces;
        return middle + QPointF(radii.width() * std::cos(angle), radii.height() * std::sin(angle));
    };
    for (int piece = 0; piece < pieces; ++piece)
        strokeSegment(image, corner(piece), corner(piece + 1), width / 2.0, colour);
}

void fillEllipse(QImage& image, QPointF centre, QSizeF radii, QRgb colour)
{
    const QRectF bounds(centre.x() - radii.width(), centre.y() - radii.height(), 2 * radii.width(),
                        2 * radii.height());
    colourWhere(image, bounds, colour, [=](QPointF point) {
        const QPointF away((point.x() - centre.x()) / radii.width(),
                           (point.y() - centre.y()) / radii.height());
        return QPointF::dotProduct(away, away) <= 1;
    });
}
