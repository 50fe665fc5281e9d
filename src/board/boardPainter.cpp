#include "board/boardPainter.h"
#include "board/mode.h"

#include "core/session.h"
#include "platform/colour.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int outline = 3;      // width of the circles' line, pixels
constexpr int frameWidth = 2;   // of the selected card's frame; fills the gap around the card exactly
constexpr double haloWidth = 4; // width of the outline that keeps captions legible on any background

template <class Part>
QRect roundedRect(const Part& part)
{
    return {qRound(part.left), qRound(part.top), qRound(part.width), qRound(part.height)};
}

void paintBackground(QPainter& painter, const QRect& damage)
{
    painter.fillRect(damage, colourOf(session.board.colour));
    if (!session.backgroundImage.isNull())
        painter.drawImage(QPoint(), session.backgroundImage);
}

void paintShapes(QPainter& painter, const BoardLook& look)
{
    constexpr double half = outline / 2.0;
    const QMarginsF inside(half, half, half, half);
    painter.setPen(QPen(look.ink, outline));
    if (session.board.VennBox.visible) {
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(wholePixels(session.board.VennBox)).marginsRemoved(inside));
    }
    const std::pair<const BoardShape&, QColor> circles[] = {{session.board.VennLeftCircle, look.leftTint},
                                                            {session.board.VennRightCircle, look.rightTint}};
    const auto drawCircles = [&](const QPen& pen, auto brushOf) {
        painter.setPen(pen);
        for (const auto& [circle, tint] : circles) {
            painter.setBrush(brushOf(tint));
            if (circle.visible)
                painter.drawEllipse(QRectF(wholePixels(circle)).marginsRemoved(inside));
        }
    };
    // Both outlines lie over both tints, so that neither changes colour inside the other circle.
    drawCircles(Qt::NoPen, [](const QColor& tint) { return QBrush(tint); });
    drawCircles(QPen(look.ink, outline), [](const QColor&) { return QBrush(Qt::NoBrush); });
}

void paintBin(QPainter& painter, const BoardLook& look)
{
    if (session.board.BigBin.visible)
        (session.board.BigBin.lidPressed ? look.binDown : look.binUp)
            .paint(&painter, wholePixels(session.board.BigBin));
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
    for (const BoardLabel& label : session.board.groupTitle)
        paintCaption(painter, look, label);
    paintCaption(painter, look, session.board.searchTitle);
    paintCaption(painter, look, session.board.otherTitle);
}

/// In the screen's own pixels, rounded to whole ones.
QRect ownPixels(double left, double top, double width, double height, double ratio)
{
    return {qRound(left * ratio), qRound(top * ratio), qRound(width * ratio), qRound(height * ratio)};
}

void paintCards(QPainter& painter, const QRect& damage, double ratio)
{
    for (const int i : session.cardStack.fromBelow()) {
        const CardImage& card = session.box[i];
        if (i == 0 || !card.visible || !paintedRect(card, ratio).intersects(damage))
            continue;
        // A face that was drawn for another size is clipped to the card.
        const double faceRatio = card.picture.devicePixelRatio();
        const QSizeF shown = card.picture.deviceIndependentSize().boundedTo({card.width, card.height});
        const QRect part = ownPixels(0, 0, shown.width(), shown.height(), faceRatio);
        painter.drawImage(ownPixels(card.left, card.top, shown.width(), shown.height(), ratio), card.picture,
                          part);
    }
}

void paintFrame(QPainter& painter, double ratio)
{
    const BoardShape& box = session.board.SelectBox;
    if (!box.visible)
        return;
    const QRect frame = ownPixels(box.left, box.top, box.width, box.height, ratio);
    const int line = qRound(frameWidth * ratio);
    for (const QRect& side : QRegion(frame).subtracted(frame.adjusted(line, line, -line, -line)))
        painter.fillRect(side, colourOf(session.board.borderColour));
}

template <class Part>
QRect rectOnScreen(const Part& part, double ratio)
{
    if (ratio == 1)
        return wholePixels(part);
    return QRectF(part.left, part.top, part.width, part.height).toAlignedRect().adjusted(-1, -1, 1, 1);
}

} // namespace

QRect wholePixels(const CardImage& card) { return roundedRect(card); }
QRect wholePixels(const BoardShape& shape) { return roundedRect(shape); }

QRect paintedRect(const CardImage& card, double ratio) { return rectOnScreen(card, ratio); }
QRect paintedRect(const BoardShape& shape, double ratio) { return rectOnScreen(shape, ratio); }

void paintBoard(QPainter& painter, const QRect& damage, const BoardLook& look)
{
    paintBackground(painter, damage);
    if (boardIsCovered())
        return; // table or chart covers all but a narrow strip below the band
    painter.setRenderHint(QPainter::Antialiasing);
    paintShapes(painter, look);
    paintBin(painter, look);
    paintCaptions(painter, look);
    painter.setRenderHint(QPainter::Antialiasing, false);
    // Cards lie on the screen's own pixels, so that their faces are as sharp as they were drawn.
    const double ratio = painter.device()->devicePixelRatioF();
    painter.scale(1 / ratio, 1 / ratio);
    paintCards(painter, damage, ratio);
    paintFrame(painter, ratio);
    painter.scale(ratio, ratio);
}
