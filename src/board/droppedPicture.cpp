#include "board/droppedPicture.h"

#include "core/session.h"
#include "platform/stretching.h"

#include <QPainter>

void paintDroppedPicture(const QImage& dropped)
{
    WorkPicture& box = session.Picture1;
    QImage painted(box.width, box.height, QImage::Format_RGB32);
    painted.fill(Qt::white); // transparent pictures lie on paper
    QPainter painter(&painted);
    painter.drawImage(0, 0, stretched(dropped, painted.size()));
    painter.end();
    box.image = painted;
}
