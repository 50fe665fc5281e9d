#include "board/faces.h"

#include "core/screen.h"
#include "core/session.h"
#include "platform/colour.h"
#include "platform/desktop.h"
#include "platform/fonts.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr int stripSize = 2;
constexpr int dotsPerMetre = 3780; // 96 to the inch: a board pixel, whatever the screen

QFont labelFont()
{
    QFont font = namedFont(QStringLiteral("Comic Sans MS"), 10);
    font.setBold(true);
    font.setStyleStrategy(QFont::NoSubpixelAntialias); // faces are also printed and scaled
    return font;
}

/// A white surface of the face's measures, in as many pixels as the screen has for them.
QImage blankFace(const QSize& size)
{
    const double ratio = desktop.pixelRatio();
    QImage face((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
    face.setDevicePixelRatio(ratio);
    face.setDotsPerMeterX(dotsPerMetre);
    face.setDotsPerMeterY(dotsPerMetre);
    face.fill(Qt::white);
    return face;
}

/// What `Picture1` shows: the file's picture from the top left corner, white where there is none.
QImage shownPicture()
{
    const WorkPicture& box = session.Picture1;
    const QSize size(box.width, box.height);
    if (box.image.size() == size)
        return box.image;
    QImage shown(size, QImage::Format_RGB32);
    shown.fill(Qt::white);
    QPainter(&shown).drawImage(QPoint(), box.image);
    return shown;
}

void print(QPainter& painter, const QPointF& corner, const QColor& ink, const QString& text)
{
    painter.setPen(ink);
    painter.drawText(corner + QPointF(0, painter.fontMetrics().ascent()), text);
}

void drawStrip(QPainter& painter, const QString& label)
{
    painter.fillRect(0, 0, 1, 1, Qt::blue);
    print(painter, {1, 1}, Qt::black, label);
}

void drawPictureWithLabel(QPainter& painter, const QImage& picture, const QString& label)
{
    painter.drawImage(QPoint(), picture);
    print(painter, {1, 1}, Qt::black, label); // the shadow
    print(painter, {0, 0}, colourOf(session.ColText), label);
}

} // namespace

void drawCardFace(int card)
{
    const QString label = session.cardValue[card][1];
    const QSize size(session.shrinkdummy.width, session.shrinkdummy.height);
    QImage face = blankFace(size);
    {
        QPainter painter(&face);
        painter.setFont(labelFont());
        if (session.cardSize == stripSize) {
            drawStrip(painter, label);
        } else {
            QImage picture =
                shownPicture().scaled(face.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            picture.setDevicePixelRatio(face.devicePixelRatio());
            drawPictureWithLabel(painter, picture, label);
        }
    }
    session.shrinkdummy.image = face;

    CardImage& image = session.box[card];
    image.tooltip = label;
    image.width = size.width();
    image.height = size.height();
    image.picture = face;
    screen.redrawCard(card);
}
