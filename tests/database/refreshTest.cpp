#include "database/refresh.h"

#include "core/mainView.h"
#include "database/loading.h"
#include "support/database.h"

#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Refresh : public Fresh {
protected:
    Refresh()
    {
        session.dbPath = writeDatabase(u"class"_s, 3);
        QObject::connect(&refreshTimer(), &QTimer::timeout, &counter, [this] { ++timeouts; });
    }

    /// Turns the refresh on with a short interval.
    void turnOn()
    {
        setRefresh(u"On"_s);
        refreshTimer().setInterval(5);
    }

    bool ticks(int count)
    {
        const int until = timeouts + count;
        return QTest::qWaitFor([&] { return timeouts >= until; });
    }

    QString file(int card, const char* ending) const
    {
        return session.dbPath + u'/' + cardName(card) + QLatin1String(ending);
    }

    int timeouts = 0;
    QObject counter;
};

} // namespace

TEST_F(Refresh, OnReadsTheFolderAtOnceAndEveryTwoSeconds)
{
    setRefresh(u"oN"_s);
    EXPECT_EQ(session.numCards, 3);
    EXPECT_TRUE(session.window.refreshCheck.pressed);
    EXPECT_TRUE(refreshTimer().isActive());
    EXPECT_EQ(refreshTimer().interval(), 2000);
    setRefresh(u"whatever"_s);
    EXPECT_FALSE(session.window.refreshCheck.pressed);
    EXPECT_FALSE(refreshTimer().isActive());
}

TEST_F(Refresh, AFileIsToldOfOnceForEachStateThatItIsIn)
{
    turnOn();
    recorded.messages.clear();
    QFile::remove(file(2, ".bmp"));
    ASSERT_TRUE(ticks(3));
    const QString missing = u"Error|File not found"_s;
    EXPECT_THAT(recorded.messages, ElementsAre(missing));
    putFile(file(2, ".bmp"), "no picture");
    ASSERT_TRUE(ticks(3));
    EXPECT_THAT(recorded.messages, ElementsAre(missing, u"Error|Invalid picture"_s));
    putFile(session.dbPath + u"/db-info.tdb"_s, " 1 \r\n 7 \r\n");
    ASSERT_TRUE(ticks(3));
    const qsizetype failedSteps = recorded.messages.size() - 2;
    EXPECT_GT(failedSteps, 1);
    ASSERT_TRUE(ticks(2));
    EXPECT_EQ(recorded.messages.size(), failedSteps + 2);
    EXPECT_TRUE(session.window.refreshCheck.pressed);
    setRefresh(u"On"_s); // asked for by the pupil
    EXPECT_EQ(recorded.messages.size(), 2 * failedSteps + 3);
}

TEST_F(Refresh, TooManyRecordsAndOddEntriesAreToldOnceOrNotAtAll)
{
    turnOn();
    recorded.messages.clear();
    ASSERT_TRUE(QFile::link(u"LOOPLOOP.tcd"_s, session.dbPath + u"/LOOPLOOP.tcd"_s));
    ASSERT_TRUE(QDir().mkdir(session.dbPath + u"/FOLDERED.tcd"_s));
    ASSERT_TRUE(ticks(2));
    EXPECT_TRUE(recorded.messages.isEmpty());
    EXPECT_EQ(session.numCards, 3);
    for (int i = 0; i < 100; ++i)
        putFile(session.dbPath + u"/CARD%1.tcd"_s.arg(i, 4, 10, '0'_L1), "");
    ASSERT_TRUE(QTest::qWaitFor([] { return !session.window.refreshCheck.pressed; }));
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Subscript out of range"_s));
    EXPECT_EQ(session.numCards, 3);
}

TEST_F(Refresh, AFolderThatIsGoneIsToldOnceAndLosesNoCard)
{
    turnOn();
    const auto shown = session.cardValue;
    const QString away = session.dbPath + u"-away"_s;
    ASSERT_TRUE(QDir().rename(session.dbPath, away));
    ASSERT_TRUE(QTest::qWaitFor([] { return !refreshTimer().isActive(); }));
    EXPECT_FALSE(session.window.refreshCheck.pressed);
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Path not found"_s));
    EXPECT_EQ(session.numCards, 3);
    EXPECT_EQ(session.cardValue, shown);
    EXPECT_TRUE(session.box[3].visible);

    setRefresh(u"On"_s);
    EXPECT_FALSE(session.window.refreshCheck.pressed);
    EXPECT_EQ(recorded.messages.size(), 2);
    ASSERT_TRUE(QDir().rename(away, session.dbPath));
    setRefresh(u"On"_s);
    EXPECT_TRUE(session.window.refreshCheck.pressed);
    EXPECT_EQ(session.numCards, 3);
}

TEST_F(Refresh, NoTickRunsUnderAModalWindow)
{
    turnOn();
    writeCard(session.dbPath, cardName(4), u"new"_s, u"05550444"_s, qRgb(0, 0, 90));
    QWindow dialog;
    dialog.setModality(Qt::ApplicationModal);
    dialog.show();
    ASSERT_TRUE(ticks(3));
    EXPECT_EQ(session.numCards, 3);
    dialog.hide();
    ASSERT_TRUE(ticks(2));
    EXPECT_EQ(session.numCards, 4);
}

TEST_F(Refresh, NoTickRunsInsideAnother)
{
    turnOn();
    int open = 0;
    int mostOpen = 0;
    int shown = 0;
    desktop.boxes.showMessage = [&](MessageIcon, const QString&, const QString&) {
        mostOpen = std::max(mostOpen, ++open);
        ++shown;
        QTest::qWait(30); // the time of six ticks
        --open;
    };
    for (int card = 1; card <= 2; ++card) { // each is told of once
        QFile::remove(file(card, ".bmp"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return shown >= card; }));
    }
    EXPECT_EQ(mostOpen, 1);
    setRefresh(u"Off"_s);
}
