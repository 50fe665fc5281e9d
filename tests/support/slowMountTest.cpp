#include "support/slowMount.h"

#include "support/freshStart.h"

#include <QElapsedTimer>
#include <QFile>

using SlowFolder = Fresh;

TEST_F(SlowFolder, GivesTheSameFilesAndTakesItsTimeForEachCall)
{
    QFile made(testFolder() + QStringLiteral("there.txt"));
    ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    made.write("kept");
    made.close();
    const SlowMount slow(30, testFolder());
    if (slow.path().isEmpty())
        GTEST_SKIP() << slow.reason().toStdString();

    QElapsedTimer clock;
    clock.start();
    QFile seen(slow.path() + QStringLiteral("/there.txt"));
    ASSERT_TRUE(seen.open(QIODevice::ReadWrite));
    EXPECT_EQ(seen.readAll(), "kept");
    seen.write(" too");
    seen.close();
    EXPECT_GE(clock.elapsed(), 4 * 30);
    ASSERT_TRUE(made.open(QIODevice::ReadOnly));
    EXPECT_EQ(made.readAll(), "kept too");
}
