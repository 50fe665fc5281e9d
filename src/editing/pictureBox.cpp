#include "editing/pictureBox.h"

#include "controls/droppedFile.h"
#include "core/session.h"
#include "platform/picture.h"

#include <QDropEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int frame = 1;      // pixels
constexpr int focusFrame = 4; // wide enough to be noticed
constexpr QPoint penTip(3, 29);

} // namespace

PictureBox::PictureBox()
{
    setFixedSize(PictureBox::sizeHint());
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(QCursor(picture(u"penCursor"_s, QSize(32, 32)), penTip.x(), penTip.y()));
}

QSize PictureBox::sizeHint() const
{
    return {session.editor.Picture1.width + 2 * frame, session.editor.Picture1.height + 2 * frame};
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawImage(QPoint(frame, frame), session.editor.Picture1.shown());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), focusFrame));
        painter.drawRect(rect().adjusted(focusFrame / 2, focusFrame / 2, -focusFrame / 2, -focusFrame / 2));
    }
}

void PictureBox::dragEnterEvent(QDragEnterEvent* event)
{
    if (!firstFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PictureBox::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    Q_EMIT fileDropped(firstFile(*event->mimeData()));
}
