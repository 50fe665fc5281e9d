#include "board/faces.h"

#include "core/screen.h"
#include "core/session.h"
#include "platform/colour.h"
#include "platform/desktop.h"
#include "platform/fonts.h"
#include "platform/stretching.h"
#include "store/cardFiles.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr int stripSize = 2;
constexpr int dotsPerMetre = 3780; // 96 to the inch: a board pixel, whatever the screen

struct Measures {
    double width;
    double height;
};
constexpr Measures measuresOfSize[] = {{40, 30}, {80, 60}, {80, 24}};

QFont labelFont()
{
    QFont font = namedFont(QStringLiteral("Comic Sans MS"), 10);
    font.setBold(true);
    font.setStyleStrategy(QFont::NoSubpixelAntialias); // faces are also printed and scaled
    return font;
}

/// The face before its label is printed, in as many pixels as the screen has for these measures: the picture,
/// or white for a strip.
QImage faceWithoutLabel(const QSize& size)
{
    const double ratio = desktop.pixelRatio();
    const QSize pixels = (QSizeF(size) * ratio).toSize();
    QImage face;
    if (session.cardSize == stripSize) {
        face = QImage(pixels, QImage::Format_RGB32);
        face.fill(Qt::white);
    } else {
        face = stretched(session.Picture1.shown(), pixels);
    }
    face.setDevicePixelRatio(ratio);
    face.setDotsPerMeterX(dotsPerMetre);
    face.setDotsPerMeterY(dotsPerMetre);
    return face;
}

void print(QPainter& painter, const QPointF& corner, const QColor& ink, const QString& text)
{
    painter.setPen(ink);
    painter.drawText(corner + QPointF(0, painter.fontMetrics().ascent()), text);
}

void printLabel(QPainter& painter, const QString& label)
{
    const bool strip = session.cardSize == stripSize;
    if (strip)
        painter.fillRect(0, 0, 1, 1, Qt::blue);
    print(painter, {1, 1}, Qt::black, label); // on a picture the shadow
    if (!strip)
        print(painter, {0, 0}, colourOf(session.ColText), label);
}

} // namespace

void drawCardFace(int card)
{
    const QString label = session.cardValue[card][1];
    const QSize size(session.shrinkdummy.width, session.shrinkdummy.height);
    QImage face = faceWithoutLabel(size);
    {
        QPainter painter(&face);
        painter.setFont(labelFont());
        printLabel(painter, label);
    }
    session.shrinkdummy.image = face;

    CardImage& image = session.box[card];
    image.tooltip = label;
    image.width = size.width();
    image.height = size.height();
    image.picture = face;
    screen.redrawCard(card);
}

void resizeAllCards()
{
    if (session.cardSize >= 0 && session.cardSize <= stripSize) {
        session.cardWidth = measuresOfSize[session.cardSize].width;
        session.cardHeight = measuresOfSize[session.cardSize].height;
    }
    session.shrinkdummy.width = int(session.cardWidth);
    session.shrinkdummy.height = int(session.cardHeight);
    session.box[0].width = session.cardWidth;
    session.box[0].height = session.cardHeight;
    for (int i = 1; i <= session.numCards; ++i) {
        session.box[i].width = session.cardWidth;
        session.box[i].height = session.cardHeight;
        loadCardPicture(i);
        drawCardFace(i);
    }
}
