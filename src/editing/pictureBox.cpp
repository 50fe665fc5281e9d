#include "editing/pictureBox.h"

#include "core/session.h"
#include "platform/picture.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

namespace {

constexpr int frame = 1;      // pixels
constexpr int focusFrame = 4; // so that nobody overlooks it
constexpr QPoint penTip(3, 29);

/// The first file of what is dragged, empty when there is none.
QString firstFile(const QMimeData* dragged)
{
    const QList<QUrl> urls = dragged->urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

} // namespace

PictureBox::PictureBox()
{
    setFixedSize(PictureBox::sizeHint());
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(QCursor(picture(QStringLiteral("penCursor"), QSize(32, 32)), penTip.x(), penTip.y()));
}

QSize PictureBox::sizeHint() const
{
    return {session.Picture1.width + 2 * frame, session.Picture1.height + 2 * frame};
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawImage(QPoint(frame, frame), session.Picture1.shown());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), focusFrame));
        painter.drawRect(rect().adjusted(focusFrame / 2, focusFrame / 2, -focusFrame / 2, -focusFrame / 2));
    }
}

void PictureBox::dragEnterEvent(QDragEnterEvent* event)
{
    if (!firstFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PictureBox::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    Q_EMIT fileDropped(firstFile(event->mimeData()));
}
