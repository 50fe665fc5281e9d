#include "platform/roundPace.h"

using namespace std::chrono_literals;

namespace {

constexpr auto roundTime = 250us;
constexpr auto shortestSleep = 1ms;
constexpr auto longestDelay = 100ms; // that is caught up with

} // namespace

std::chrono::nanoseconds RoundPace::sleepAfterRound(Clock::time_point now)
{
    due += roundTime;
    if (now - due > longestDelay)
        due = now;
    return due - now >= shortestSleep ? due - now : 0ns;
}
