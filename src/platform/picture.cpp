#include "platform/picture.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

QPixmap picture(const QString& name, QSize size)
{
    const double ratio = qGuiApp->devicePixelRatio();
    QSvgRenderer drawing(picturePath(name));
    QImage made(drawing.defaultSize().scaled(size * ratio, Qt::KeepAspectRatio),
                QImage::Format_ARGB32_Premultiplied);
    made.fill(Qt::transparent);
    QPainter painter(&made);
    drawing.render(&painter);
    painter.end();
    made.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(std::move(made));
}

QString picturePath(const QString& name) { return u":/pictures/"_s + name + u".svg"_s; }
