#include "board/faces.h"

#include "core/mainView.h"
#include "core/session.h"
#include "platform/colour.h"
#include "platform/desktop.h"
#include "platform/fonts.h"
#include "platform/stretching.h"
#include "store/cardFiles.h"

#include <QFontMetricsF>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int dotsPerMetre = 3780; // 96 to the inch: the font's size is in board pixels on every device

struct Measures {
    double width;
    double height;
};
constexpr Measures measuresOfSize[] = {{40, 30}, {80, 60}, {80, 24}};

QFont labelFont()
{
    QFont font = namedFont(u"Comic Sans MS"_s, 10);
    font.setBold(true);
    font.setStyleStrategy(QFont::NoSubpixelAntialias); // faces are also printed and scaled
    return font;
}

QImage faceWithoutLabel(const QImage& picture, const FaceLook& look)
{
    const QSize pixels = (QSizeF(look.size) * look.pixelRatio).toSize();
    QImage face;
    if (look.strip) {
        face = QImage(pixels, QImage::Format_RGB32);
        face.fill(Qt::white);
    } else {
        face = stretched(picture, pixels);
    }
    face.setDevicePixelRatio(look.pixelRatio);
    face.setDotsPerMeterX(dotsPerMetre);
    face.setDotsPerMeterY(dotsPerMetre);
    return face;
}

void print(QPainter& painter, const QPointF& corner, const QColor& ink, const QString& text)
{
    painter.setPen(ink);
    painter.drawText(corner + QPointF(0, painter.fontMetrics().ascent()), text);
}

void printLabel(QPainter& painter, const QString& label, const FaceLook& look)
{
    if (look.strip)
        painter.fillRect(0, 0, 1, 1, Qt::blue);
    print(painter, {1, 1}, Qt::black, label); // on a picture the shadow
    if (!look.strip)
        print(painter, {0, 0}, look.labelColour, label);
}

} // namespace

QImage cardFace(const QImage& picture, const QString& label, const FaceLook& look)
{
    QImage face = faceWithoutLabel(picture, look);
    {
        QPainter painter(&face);
        painter.setFont(labelFont());
        printLabel(painter, label, look);
    }
    return face;
}

FaceLook boardFaceLook()
{
    return {{session.editor.shrinkdummy.width, session.editor.shrinkdummy.height},
            desktop.screen.pixelRatio(),
            session.cardSize == stripSize,
            colourOf(session.options.ColText)};
}

void drawCardFace(int card)
{
    const FaceLook look = boardFaceLook();
    const QString label = session.cardValue[card][1];
    const QImage face = cardFace(look.strip ? QImage() : session.editor.Picture1.shown(), label, look);
    session.editor.shrinkdummy.image = face;

    CardImage& image = session.box[card];
    image.tooltip = label;
    image.width = look.size.width();
    image.height = look.size.height();
    image.picture = face;
    mainView.redrawCard(card);
}

void resizeAllCards()
{
    if (session.cardSize >= 0 && session.cardSize <= stripSize) {
        session.cardWidth = measuresOfSize[session.cardSize].width;
        session.cardHeight = measuresOfSize[session.cardSize].height;
    }
    session.editor.shrinkdummy.width = int(session.cardWidth);
    session.editor.shrinkdummy.height = int(session.cardHeight);
    session.box[0].width = session.cardWidth;
    session.box[0].height = session.cardHeight;
    for (int i = 1; i <= session.numCards; ++i) {
        session.box[i].width = session.cardWidth;
        session.box[i].height = session.cardHeight;
        loadCardPicture(i);
        drawCardFace(i);
    }
}
