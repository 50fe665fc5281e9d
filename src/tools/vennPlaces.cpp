#include "tools/vennPlaces.h"

#include "core/session.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double leftEdge = 132;                  // of the left circle, if there is enough room
constexpr double rightMargin = 43;                // of the right circle
constexpr double room = 1.5;                      // card widths for the cards of one region
constexpr double arcOfRegion = 3.455752015113831; // 1.1 pi: 198 degrees of the circle's outer side
constexpr double middleOfArc = std::numbers::pi / 2;
constexpr double gap = 2; // pixels between a card and the edge of a circle

struct Circles {
    double radius;
    double apart; // distance of the centres
};

Circles circles()
{
    return {session.board.VennLeftCircle.width / 2,
            session.board.VennRightCircle.left - session.board.VennLeftCircle.left};
}

/// How far above and below the centres an object of that width, centred between the circles, lies inside
/// both.
double reachInBoth(double width)
{
    const auto [r, apart] = circles();
    const double side = (apart + width) / 2 + gap;
    return std::sqrt(std::max(0.0, r * r - side * side)) - gap;
}

/// The column of the cards in both circles: the middle three fifths of their height, or less where the lens
/// is too narrow.
double heightInBoth(double part, QSizeF card)
{
    const double r = circles().radius;
    const double top = session.board.VennLeftCircle.top;
    const double half = session.cardHeight / 2;
    const double reach = std::max(0.0, reachInBoth(card.width()) - card.height() / 2);
    if (reach < 0.6 * r - half)
        return top + r + (2 * part - 1) * reach;
    return top + half + 0.4 * r + part * std::min(1.2 * r - half, 0.6 * r - half + reach);
}

/// The distance from the circle's centre of a card in that circle alone. It lies in the crescent beside the
/// other circle; if that is narrower than the card, the card extends beyond its own circle rather than into
/// the other.
double radiusOfArc(QSizeF card)
{
    const auto [r, apart] = circles();
    return std::max(r - 0.75 * session.cardWidth, r - apart + card.width() / 2 + gap);
}

/// Whether a card at that angle of the arc, 0 at the bottom and growing outwards, is clear of the other
/// circle.
bool staysApart(double angle, QSizeF card)
{
    const auto [r, apart] = circles();
    const double arc = radiusOfArc(card);
    const double x = apart + arc * std::sin(angle) - card.width() / 2 - gap;
    const double y = arc * std::abs(std::cos(angle)) - card.height() / 2 - gap;
    return std::hypot(x, std::max(0.0, y)) >= r;
}

/// The angle nearest to the other circle at which a card is clear of it, or the end of the arc if it is clear
/// there.
double firstAngle(QSizeF card)
{
    double within = std::numbers::pi - arcOfRegion;
    if (staysApart(within, card))
        return within;
    double outside = middleOfArc;
    while (outside - within > 1e-9) {
        const double middle = (outside + within) / 2;
        (staysApart(middle, card) ? outside : within) = middle;
    }
    return outside;
}

/// A point on the arc, relative to the circle's centre: x outwards, y downwards.
QPointF placeOnArc(double part, QSizeF card)
{
    const double first = firstAngle(card);
    const double angle =
        first > 0 ? middleOfArc + (2 * part - 1) * (middleOfArc - first) : part * (std::numbers::pi - first);
    return radiusOfArc(card) * QPointF(std::sin(angle), std::cos(angle));
}

} // namespace

void layoutVenn()
{
    session.board.VennBox.width = session.board.width - 15;
    session.board.VennBox.height = session.board.height - 55;
    const double needed = room * session.cardWidth;
    const double across = session.board.width - rightMargin - leftEdge;
    // On a nearly square board, circles of the board's height would overlap almost entirely.
    const double diameter = std::min(session.board.VennBox.height - 90, across - needed);
    // On a wide board they would hardly overlap: they move together, but stay apart where cards are huge.
    const double apart = std::min(across - diameter, std::max(diameter - needed, diameter / 2));
    for (BoardShape* circle : {&session.board.VennLeftCircle, &session.board.VennRightCircle}) {
        circle->width = circle->height = diameter;
        circle->top = session.board.VennBox.top + 73;
    }
    session.board.VennLeftCircle.left = leftEdge + (across - diameter - apart) / 2;
    session.board.VennRightCircle.left = session.board.VennLeftCircle.left + apart;
}

QPointF vennPlace(VennRegion region, double part, QSizeF card)
{
    const double r = circles().radius;
    const BoardShape& left = session.board.VennLeftCircle;
    const BoardShape& right = session.board.VennRightCircle;
    switch (region) {
    case VennRegion::both:
        return {(left.left + r + right.left + r) / 2, heightInBoth(part, card)};
    case VennRegion::leftOnly: {
        const QPointF place = placeOnArc(part, card);
        return {left.left + r - place.x(), left.top + r + place.y()};
    }
    case VennRegion::rightOnly: {
        const QPointF place = placeOnArc(part, card);
        return {right.left + r + place.x(), right.top + r + place.y()};
    }
    default:
        return {session.cardWidth, left.top + part * 2 * r};
    }
}
