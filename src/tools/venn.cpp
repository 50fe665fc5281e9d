#include "tools/venn.h"

#include "board/labels.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/values.h"
#include "tools/conditions.h"
#include "tools/flight.h"
#include "tools/pacing.h"
#include "tools/vennPlaces.h"

#include <algorithm>
#include <array>

namespace {

constexpr int numRegions = 4;

using Counts = std::array<int, numRegions>;

VennRegion regionOf(int card)
{
    const bool right = testCondition(1, card);
    const bool left = testCondition(0, card);
    if (left && right)
        return VennRegion::both;
    return left ? VennRegion::leftOnly : right ? VennRegion::rightOnly : VennRegion::neither;
}

void showCircleTitle(BoardLabel& title, const BoardShape& circle, int row)
{
    title.text = conditionText(row).chopped(1);
    mainView.measureLabel(title.text, title.width, title.height);
    title.top = circle.top - 1.5 * title.height;
    title.left = circle.left + session.board.VennLeftCircle.width / 2 - title.width / 2;
    title.visible = true;
}

void showVenn()
{
    clearBoardLabels();
    session.board.VennBox.visible = session.board.VennLeftCircle.visible =
        session.board.VennRightCircle.visible = true;
    showCircleTitle(session.board.searchTitle, session.board.VennLeftCircle, 0);
    showCircleTitle(session.board.otherTitle, session.board.VennRightCircle, 1);
    mainView.redrawBoard();
}

void flyToRegion(int card, Counts& running, const Counts& counts)
{
    const VennRegion region = regionOf(card);
    const int at = int(region);
    // Cards may have changed region since they were counted; surplus ones reuse the places from the start.
    const int count = std::max(counts[at], 1);
    const double part = double(running[at] % count) / count;
    const QPointF place = vennPlace(region, part, {session.box[card].width, session.box[card].height});
    ++running[at];
    moveCardTo(card, toInteger(place.x()), toInteger(place.y()));
    if (region == VennRegion::leftOnly || region == VennRegion::rightOnly)
        sendCardToBack(card);
    else
        bringCardToFront(card);
}

} // namespace

void runVenn(void (*dialogAway)())
{
    beginRun();
    layoutVenn();
    Counts counts{};
    for (int card = 1; card <= session.numCards; ++card)
        ++counts[int(regionOf(card))];
    dialogAway();
    showVenn();
    Counts running{};
    for (int card = 1; card <= session.numCards; ++card)
        flyToRegion(card, running, counts);
    endRun();
    session.vennTick = false;
}
