#include "cardPicture.h"

#include <QPainter>
#include <QSvgRenderer>

#include <stdexcept>

void drawEdge(QImage& picture)
{
    constexpr double width = 3; // half of that on the board
    QColor shade = ink;
    shade.setAlphaF(0.5F);
    QPainter painter(&picture);
    painter.setPen(QPen(shade, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawRect(QRectF({}, pictureSize).adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

QImage drawSvgs(const QStringList& paths, QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QString& path : paths) {
        QSvgRenderer drawing(path);
        if (!drawing.isValid())
            throw std::runtime_error("can't draw " + path.toStdString());
        drawing.render(&painter);
    }
    return picture;
}
