#include "platform/errors.h"

#include "support/freshStart.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

using Errors = Fresh;

TEST_F(Errors, TheBoxTellsTheErrorsOwnDescriptionAndTheStateReachedStays)
{
    int reached = 0;
    EXPECT_FALSE(withErrorBox([&] {
        reached = 1;
        throw RuntimeError(diskFull);
    }));
    EXPECT_EQ(reached, 1);
    EXPECT_EQ(recorded.beeps, 1);
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Disk full"_s));
}

TEST_F(Errors, EveryStepRunsAndEveryFailureIsTold)
{
    int ran = 0;
    int failures = 0;
    const auto fails = [&] {
        ++ran;
        throw RuntimeError(pastEndOfFile);
    };
    ignoringErrors({fails, [&] { ++ran; }, fails}, [&] { ++failures; });
    EXPECT_EQ(ran, 3);
    EXPECT_EQ(failures, 2);
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(Errors, NothingGetsPastTheGuard)
{
    guarded([] { throw std::bad_alloc(); });
    guarded([] { throw 5; });
    EXPECT_EQ(recorded.messages.size(), 2);
}
