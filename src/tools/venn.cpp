#include "tools/venn.h"

#include "board/labels.h"
#include "core/screen.h"
#include "core/session.h"
#include "platform/values.h"
#include "tools/conditions.h"
#include "tools/flight.h"
#include "tools/pacing.h"

#include <QPointF>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double arcOfRegion = 3.455752015113831; // 1.1 pi: 198 degrees of the circle's outer side

enum Region { both, leftOnly, rightOnly, neither, numRegions };

using Counts = std::array<int, numRegions>;

Region regionOf(int card)
{
    const bool right = testCondition(1, card);
    const bool left = testCondition(0, card);
    if (left && right)
        return both;
    return left ? leftOnly : right ? rightOnly : neither;
}

/// The place of a card's centre: `part` is how far through its region it comes, 0 up to but not including 1.
QPointF placeInRegion(Region region, double part)
{
    const BoardShape& left = session.VennLeftCircle;
    const BoardShape& right = session.VennRightCircle;
    const double r = left.width / 2;
    const double inner = r - 0.75 * session.cardWidth;
    const double angle = part * arcOfRegion;
    switch (region) {
    case both:
        return {(left.left + r + right.left + r) / 2,
                left.top + session.cardHeight / 2 + 0.4 * r + part * (1.2 * r - session.cardHeight / 2)};
    case leftOnly:
        return {left.left + r - inner * std::sin(angle), left.top + r + inner * std::cos(angle)};
    case rightOnly:
        return {right.left + r + inner * std::sin(angle), right.top + r + inner * std::cos(angle)};
    default:
        return {session.cardWidth, left.top + part * 2 * r};
    }
}

void showCircleTitle(BoardLabel& title, const BoardShape& circle, int row)
{
    title.text = conditionText(row).chopped(1);
    screen.measureLabel(title.text, title.width, title.height);
    title.top = circle.top - 1.5 * title.height;
    title.left = circle.left + session.VennLeftCircle.width / 2 - title.width / 2;
    title.visible = true;
}

void showVenn()
{
    clearBoardLabels();
    session.VennBox.visible = session.VennLeftCircle.visible = session.VennRightCircle.visible = true;
    showCircleTitle(session.searchTitle, session.VennLeftCircle, 0);
    showCircleTitle(session.otherTitle, session.VennRightCircle, 1);
    screen.redrawBoard();
}

void flyToRegion(int card, Counts& running, const Counts& counts)
{
    const Region region = regionOf(card);
    // Cards that changed their region during the run may be more than were counted: they begin it again.
    const int count = std::max(counts[region], 1);
    const double part = double(running[region] % count) / count;
    const QPointF place = placeInRegion(region, part);
    ++running[region];
    moveCardTo(card, toInteger(place.x()), toInteger(place.y()));
    if (region == leftOnly || region == rightOnly)
        sendCardToBack(card);
    else
        bringCardToFront(card);
}

} // namespace

void layoutVenn()
{
    session.VennBox.width = session.boardWidth - 15;
    session.VennBox.height = session.boardHeight - 55;
    const double diameter = session.VennBox.height - 90;
    for (BoardShape* circle : {&session.VennLeftCircle, &session.VennRightCircle}) {
        circle->width = circle->height = diameter;
        circle->top = session.VennBox.top + 73;
    }
    session.VennRightCircle.left = session.boardWidth - diameter - 43;
}

void runVenn(void (*dialogAway)())
{
    beginRun();
    layoutVenn();
    Counts counts{};
    for (int card = 1; card <= session.numCards; ++card)
        ++counts[regionOf(card)];
    dialogAway();
    showVenn();
    Counts running{};
    for (int card = 1; card <= session.numCards; ++card)
        flyToRegion(card, running, counts);
    endRun();
    session.vennTick = false;
}
