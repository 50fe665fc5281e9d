#include "board/boardPainter.h"

#include "core/session.h"
#include "platform/colour.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int outline = 3;      // width of the circles' line, pixels
constexpr int frameWidth = 2;   // of the selected card's frame; it just fills the gap around the card
constexpr double haloWidth = 4; // around captions, so that they can be read on any background

template <class Part>
QRect roundedRect(const Part& part)
{
    return {qRound(part.left), qRound(part.top), qRound(part.width), qRound(part.height)};
}

void paintBackground(QPainter& painter, const QRect& damage)
{
    painter.fillRect(damage, colourOf(session.boardColour));
    if (!session.backgroundImage.isNull())
        painter.drawImage(QPoint(), session.backgroundImage);
}

void paintShapes(QPainter& painter, const BoardLook& look)
{
    constexpr double half = outline / 2.0;
    const QMarginsF inside(half, half, half, half);
    painter.setPen(QPen(look.ink, outline));
    if (session.VennBox.visible) {
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(wholePixels(session.VennBox)).marginsRemoved(inside));
    }
    const std::pair<const BoardShape&, QColor> circles[] = {{session.VennLeftCircle, look.leftTint},
                                                            {session.VennRightCircle, look.rightTint}};
    for (const auto& [circle, tint] : circles) {
        if (!circle.visible)
            continue;
        painter.setBrush(tint);
        painter.drawEllipse(QRectF(wholePixels(circle)).marginsRemoved(inside));
    }
}

void paintBin(QPainter& painter, const BoardLook& look)
{
    if (session.BigBin.visible)
        (session.BigBin.lidPressed ? look.binDown : look.binUp).paint(&painter, wholePixels(session.BigBin));
}

void paintCaption(QPainter& painter, const BoardLook& look, const BoardLabel& label)
{
    if (!label.visible)
        return;
    const QRect place = roundedRect(label);
    const QFontMetrics metrics(look.captionFont);
    const QString text = metrics.elidedText(label.text.trimmed(), Qt::ElideRight, place.width());
    const int left = place.left() + (place.width() - metrics.horizontalAdvance(text)) / 2;
    const int baseline = place.top() + (place.height() - metrics.height()) / 2 + metrics.ascent();
    QPainterPath letters;
    letters.addText(left, baseline, look.captionFont, text);
    painter.strokePath(letters, QPen(look.paper, haloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(letters, look.ink);
}

void paintCaptions(QPainter& painter, const BoardLook& look)
{
    for (const BoardLabel& label : session.GroupLabel)
        paintCaption(painter, look, label);
    paintCaption(painter, look, session.searchTitle);
    paintCaption(painter, look, session.otherTitle);
}

void paintCards(QPainter& painter, const QRect& damage)
{
    for (const int i : session.cardStack.fromBelow()) {
        const CardImage& card = session.box[i];
        const QRect place = wholePixels(card);
        if (i == 0 || !card.visible || !place.intersects(damage))
            continue;
        // A face that was drawn for another measure is cut by the card's edge, never scaled.
        const QSize shown = card.picture.deviceIndependentSize().toSize().boundedTo(place.size());
        const double ratio = card.picture.devicePixelRatio();
        painter.drawImage(place.topLeft(), card.picture, QRectF(QPointF(), QSizeF(shown) * ratio));
    }
}

void paintFrame(QPainter& painter)
{
    if (!session.SelectBox.visible)
        return;
    const QRect frame = wholePixels(session.SelectBox);
    const QRect inside = frame.adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth);
    for (const QRect& side : QRegion(frame).subtracted(inside))
        painter.fillRect(side, colourOf(session.borderColour));
}

} // namespace

QRect wholePixels(const CardImage& card) { return roundedRect(card); }
QRect wholePixels(const BoardShape& shape) { return roundedRect(shape); }

void paintBoard(QPainter& painter, const QRect& damage, const BoardLook& look)
{
    paintBackground(painter, damage);
    if (session.tablePanel.visible)
        return; // it lies over all but a hair's breadth below the band
    painter.setRenderHint(QPainter::Antialiasing);
    paintShapes(painter, look);
    paintBin(painter, look);
    paintCaptions(painter, look);
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintCards(painter, damage);
    paintFrame(painter);
}
