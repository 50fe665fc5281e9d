#include "cardPicture.h"

#include <QPainter>
#include <QSvgRenderer>

#include <stdexcept>

QImage drawSvg(const QString& path)
{
    QSvgRenderer drawing(path);
    if (!drawing.isValid())
        throw std::runtime_error("can't draw " + path.toStdString());
    QImage picture = blankPicture();
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    return picture;
}
