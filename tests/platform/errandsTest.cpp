#include "platform/errands.h"

#include "support/freshStart.h"

#include <QTest>

#include <semaphore>
#include <thread>

using namespace Qt::StringLiterals;

using ErrandsTest = Fresh;

namespace {

constexpr int patience = 10000; // milliseconds

} // namespace

TEST_F(ErrandsTest, BringTheirResultsBackToThisThread)
{
    Errands errands;
    const auto here = std::this_thread::get_id();
    int sum = 0;
    bool home = true;
    for (int i = 1; i <= 20; ++i)
        errands.send([i](const Errands::Forgotten&) { return i; },
                     [&](int result) {
                         sum += result;
                         home = home && std::this_thread::get_id() == here;
                     });
    EXPECT_TRUE(QTest::qWaitFor([&] { return sum == 210; }, patience));
    EXPECT_TRUE(home);
}

TEST_F(ErrandsTest, AnErrorInTheWorkGivesAnEmptyResultAndOneAfterwardsIsShown)
{
    Errands errands;
    errands.send([](const Errands::Forgotten&) -> QString { throw RuntimeError(deviceError); },
                 [&](const QString& result) {
                     EXPECT_TRUE(result.isEmpty());
                     throw RuntimeError(diskFull);
                 });
    EXPECT_TRUE(QTest::qWaitFor([] { return !recorded.messages.isEmpty(); }, patience));
    EXPECT_EQ(recorded.messages.first(), u"Error|Disk full"_s);
}

TEST_F(ErrandsTest, ForgottenOnesNeverComeBackAndHoldUpNobody)
{
    struct DeadShare {
        std::atomic<int> callers = 0;
        std::counting_semaphore<> comesBack{0};
    };
    const auto share = std::make_shared<DeadShare>();
    bool came = false;
    {
        Errands errands;
        for (int i = 0; i < 8; ++i) // more than run at a time
            errands.send(
                [share](const Errands::Forgotten&) {
                    ++share->callers;
                    share->comesBack.acquire();
                    return 0;
                },
                [&](int) { came = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return share->callers == 4; }, patience));

        errands.forget();
        bool later = false;
        errands.send([](const Errands::Forgotten&) { return true; }, [&](bool result) { later = result; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return later; }, patience));
    } // the destructor doesn't wait
    share->comesBack.release(4);
    EXPECT_TRUE(QTest::qWaitFor([&] { return share.use_count() == 1; }, patience))
        << "all threads have ended";
    QCoreApplication::processEvents();
    EXPECT_FALSE(came);
    EXPECT_EQ(share->callers, 4);
}
