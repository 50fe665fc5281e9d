#include "paint/blit.h"

#include <QRect>

void transparentBlit(QImage& target, QPoint at, QSize size, const QImage& source, QPoint from, QRgb clear)
{
    const QPoint offset = from - at;
    const QRect area = QRect(at, size) & target.rect() & source.rect().translated(-offset);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* in = reinterpret_cast<const QRgb*>(source.constScanLine(y + offset.y())) + offset.x();
        auto* out = reinterpret_cast<QRgb*>(target.scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            if ((in[x] & RGB_MASK) != (clear & RGB_MASK))
                out[x] = in[x];
        }
    }
}
