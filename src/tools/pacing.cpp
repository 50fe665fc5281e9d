#include "tools/pacing.h"

#include "core/screen.h"
#include "core/session.h"

#include <iterator>

namespace {

constexpr double speeds[] = {0.1, 0.15, 0.2, 0.25, 0.3, 0.5, 1, 5, 10}; // of positions 1..9

} // namespace

void prepareAnimation()
{
    session.animationSpeed = speeds[usualSpeedPosition - 1];
    session.animationStopped = false;
    session.speedPosition = usualSpeedPosition;
    session.runPaused = false;
}

void beginRun()
{
    prepareAnimation();
    screen.showSpeedWindow();
}

void endRun() { screen.unloadSpeedWindow(); }

void speedChosen(int position)
{
    if (position >= 1 && position <= int(std::size(speeds)))
        session.savedSpeed = speeds[position - 1];
    if (!session.runPaused)
        session.animationSpeed = session.savedSpeed;
}

void pauseRun()
{
    session.savedSpeed = session.animationSpeed;
    session.animationSpeed = 0;
    session.runPaused = true;
}

void resumeRun()
{
    session.animationSpeed = session.savedSpeed;
    session.runPaused = false;
}

void stopRun()
{
    session.animationSpeed = 0;
    session.animationStopped = true;
}
