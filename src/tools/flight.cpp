#include "tools/flight.h"

#include "core/mainView.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/values.h"

#include <cmath>

namespace {

double& place(int card, Axis axis)
{
    return axis == Axis::x ? session.box[card].left : session.box[card].top;
}

} // namespace

bool flyAlong(int card, Axis axis, double target)
{
    while (std::abs(target - place(card, axis)) > session.run.animationSpeed && !session.run.stopped) {
        // The direction is computed in every round, since the pupil may drag the card past the target.
        const double step = place(card, axis) > target ? -0.5 : 0.5;
        place(card, axis) += session.run.animationSpeed * step;
        mainView.redrawCard(card);
        if (session.run.animationSpeed == 0)
            desktop.waitForEvents();
        else
            desktop.yield();
    }
    return !session.run.stopped;
}

bool flyOnto(int card, Axis axis, double target)
{
    if (!flyAlong(card, axis, target))
        return false;
    place(card, axis) = target;
    mainView.redrawCard(card);
    return true;
}

void flyToCorner(int card, double left, double top)
{
    flyOnto(card, Axis::x, left);
    if (!flyOnto(card, Axis::y, top))
        return;
    bringCardToFront(card);
    session.run.cardPlaced[card] = true;
}

void moveCardTo(int card, int x, int y)
{
    const double left = toInteger(x - session.box[card].width / 2);
    const double top = toInteger(y - session.box[card].height / 2);
    flyToCorner(card, left, top);
}

void bringCardToFront(int card)
{
    session.cardStack.bringToFront(card);
    mainView.redrawCard(card);
}

void sendCardToBack(int card)
{
    session.cardStack.sendToBack(card);
    mainView.redrawCard(card);
}
