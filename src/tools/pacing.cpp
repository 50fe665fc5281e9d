#include "tools/pacing.h"

#include "core/mainView.h"
#include "core/session.h"

#include <iterator>

namespace {

constexpr double speeds[] = {0.1, 0.15, 0.2, 0.25, 0.3, 0.5, 1, 5, 10}; // of positions 1..9

} // namespace

void prepareAnimation()
{
    session.run.animationSpeed = speeds[usualSpeedPosition - 1];
    session.run.stopped = false;
    session.run.speedPosition = usualSpeedPosition;
    session.run.paused = false;
}

void beginRun()
{
    prepareAnimation();
    mainView.showSpeedWindow();
}

void endRun() { mainView.unloadSpeedWindow(); }

void speedChosen(int position)
{
    if (position >= 1 && position <= int(std::size(speeds)))
        session.run.savedSpeed = speeds[position - 1];
    if (!session.run.paused)
        session.run.animationSpeed = session.run.savedSpeed;
}

void pauseRun()
{
    session.run.savedSpeed = session.run.animationSpeed;
    session.run.animationSpeed = 0;
    session.run.paused = true;
}

void resumeRun()
{
    session.run.animationSpeed = session.run.savedSpeed;
    session.run.paused = false;
}

void stopRun()
{
    session.run.animationSpeed = 0;
    session.run.stopped = true;
}
