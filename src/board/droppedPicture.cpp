#include "board/droppedPicture.h"

#include "core/session.h"
#include "platform/pictureFile.h"
#include "platform/stretching.h"

#include <QPainter>

QImage readDroppedPicture(const QString& path)
{
    const WorkPicture& box = session.editor.Picture1;
    return readPicture(path, {box.width, box.height});
}

void paintDroppedPicture(const QImage& dropped)
{
    WorkPicture& box = session.editor.Picture1;
    QImage painted(box.width, box.height, QImage::Format_RGB32);
    painted.fill(Qt::white); // the background of transparent pictures
    QPainter painter(&painted);
    painter.drawImage(0, 0, stretched(dropped, painted.size()));
    painter.end();
    box.image = painted;
}
