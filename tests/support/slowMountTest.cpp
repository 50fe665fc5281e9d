#include "support/slowMount.h"

#include "support/freshStart.h"

#include <QElapsedTimer>
#include <QFile>

using namespace Qt::StringLiterals;

using SlowFolder = Fresh;

TEST_F(SlowFolder, ShowsTheSameFilesAndTakesItsTimeForEachCall)
{
    QFile made(testFolder() + u"there.txt"_s);
    ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    made.write("kept");
    made.close();
    const SlowMount slow(30, testFolder());
    if (slow.path().isEmpty())
        GTEST_SKIP() << slow.reason().toStdString();

    QElapsedTimer clock;
    clock.start();
    QFile seen(slow.path() + u"/there.txt"_s);
    ASSERT_TRUE(seen.open(QIODevice::ReadOnly));
    EXPECT_EQ(seen.readAll(), "kept");
    EXPECT_GE(clock.elapsed(), 3 * 30);
}
