#include "platform/roundPace.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(RoundPace, FillsASecondWith4000RoundsWhateverARoundTakes)
{
    for (const std::chrono::nanoseconds work : {0ns, 3'000ns, 200'000ns}) {
        RoundPace pace;
        const RoundPace::Clock::time_point start(std::chrono::hours(1));
        auto now = start;
        pace.sleepAfterRound(now); // the run before ended long ago
        for (int round = 0; round < 4000; ++round) {
            now += round == 1000 ? 50ms : work; // one slow paint
            now += pace.sleepAfterRound(now);
        }
        EXPECT_LT(now - start - 1s, 1ms);
        EXPECT_GT(now - start - 1s, -1ms);
        now += 10s; // a dialog
        now += pace.sleepAfterRound(now);
        EXPECT_LT(now - start - 11s, 2ms) << "lost rounds are not made up for";
    }
}
