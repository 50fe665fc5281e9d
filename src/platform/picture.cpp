#include "platform/picture.h"

#include <QGuiApplication>
#include <QIcon>

QPixmap picture(const QString& name, QSize size)
{
    return QIcon(picturePath(name)).pixmap(size, qGuiApp->devicePixelRatio());
}

QString picturePath(const QString& name)
{
    return QStringLiteral(":/pictures/") + name + QStringLiteral(".svg");
}
