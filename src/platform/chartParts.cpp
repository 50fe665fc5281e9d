#include "platform/chartParts.h"

#include <QFontInfo>
#include <QTransform>

#include <algorithm>

double textSize(ChartTextRole role)
{
    constexpr double sizes[] = {1.5, 1.15, 1};
    return sizes[int(role)];
}

QPolygonF ChartText::area() const
{
    QTransform turned;
    turned.translate(anchor.x(), anchor.y());
    turned.rotate(angle);
    return turned.map(QPolygonF(QRectF(-align * length, -height / 2, length, height)));
}

QFont chartFont(const QFont& labels, ChartTextRole role, double scale)
{
    QFont font(labels);
    const int size = labels.pixelSize() > 0 ? labels.pixelSize() : QFontInfo(labels).pixelSize();
    font.setPixelSize(std::max(1, qRound(size * scale * textSize(role))));
    font.setBold(role != ChartTextRole::label);
    return font;
}

int ChartLayout::markAt(QPointF point) const
{
    for (std::size_t i = marks.size(); i-- > 0;) {
        if (marks[i].reach.contains(point))
            return int(i);
    }
    return -1;
}
