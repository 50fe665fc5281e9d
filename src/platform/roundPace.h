// The pace of a run: how long each round of it is to take, whatever the machine.
#pragma once

#include <chrono>

class RoundPace {
public:
    using Clock = std::chrono::steady_clock;

    /// How long to sleep after a round that ended at `now`, so that 4,000 rounds fill a second. Rounds come
    /// in bursts of a few, since a sleep costs more than a round. A run that was held up for long, by a
    /// dialog or by a pause, goes on from there: it doesn't make up for the lost rounds.
    std::chrono::nanoseconds sleepAfterRound(Clock::time_point now);

private:
    Clock::time_point due; // when the next round is to begin
};
