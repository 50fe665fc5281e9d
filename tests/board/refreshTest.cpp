#include "board/refresh.h"

#include "core/screen.h"
#include "store/loading.h"
#include "support/database.h"

#include <QTest>
#include <QTimer>
#include <QWindow>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Refresh : public Fresh {
protected:
    Refresh()
    {
        session.dbPath = writeDatabase(QStringLiteral("class"), 3);
        QObject::connect(&refreshTimer(), &QTimer::timeout, &counter, [this] { ++timeouts; });
    }

    /// Turns the refresh on and makes it tick fast.
    void turnOn()
    {
        setRefresh(QStringLiteral("On"));
        refreshTimer().setInterval(5);
    }

    bool ticks(int count)
    {
        const int until = timeouts + count;
        return QTest::qWaitFor([&] { return timeouts >= until; });
    }

    QString file(int card, const char* ending) const
    {
        return session.dbPath + QLatin1Char('/') + cardName(card) + QLatin1String(ending);
    }

    int timeouts = 0;
    QObject counter;
};

} // namespace

TEST_F(Refresh, OnReadsTheFolderAtOnceAndEveryTwoSeconds)
{
    setRefresh(QStringLiteral("oN"));
    EXPECT_EQ(session.numCards, 3);
    EXPECT_TRUE(session.refreshCheck.pressed);
    EXPECT_TRUE(refreshTimer().isActive());
    EXPECT_EQ(refreshTimer().interval(), 2000);
    setRefresh(QStringLiteral("whatever"));
    EXPECT_FALSE(session.refreshCheck.pressed);
    EXPECT_FALSE(refreshTimer().isActive());
}

TEST_F(Refresh, ATickShowsWhatOtherWorkstationsDidAndMovesNoCardInView)
{
    turnOn();
    session.box[1].left = 300.5;
    session.box[2].left = 400.5;
    const QImage face = session.box[2].picture;
    writeCard(session.dbPath, cardName(2), QStringLiteral("changed"), QStringLiteral("01110222"),
              qRgb(0, 90, 0));
    writeCard(session.dbPath, cardName(4), QStringLiteral("new"), QStringLiteral("05550444"), qRgb(0, 0, 90));
    ASSERT_TRUE(ticks(2));
    EXPECT_EQ(session.numCards, 4);
    EXPECT_EQ(session.box[2].tooltip, QStringLiteral("changed"));
    EXPECT_NE(session.box[2].picture, face);
    EXPECT_EQ(session.box[1].left, 300.5);
    EXPECT_EQ(session.box[2].left, 400.5);
    EXPECT_EQ(session.box[4].left, 555);
    EXPECT_EQ(session.box[4].top, 444);

    for (const char* ending : {".tcd", ".bmp"})
        QFile::remove(file(1, ending));
    ASSERT_TRUE(ticks(2));
    EXPECT_EQ(session.numCards, 3);
    EXPECT_EQ(session.cardId[1], cardName(2));
    EXPECT_FALSE(session.box[4].visible);
    EXPECT_THAT(recorded.messages, IsEmpty());
}

TEST_F(Refresh, ACardFileThatVanishesInTheMiddleIsToldOnceForEachReading)
{
    turnOn();
    recorded.messages.clear();
    QFile::remove(file(2, ".bmp"));
    ASSERT_TRUE(ticks(3));
    EXPECT_EQ(recorded.messages.size(), timeouts);
    EXPECT_EQ(QSet(recorded.messages.begin(), recorded.messages.end()).values(),
              QStringList(QStringLiteral("Error|File not found")));
    EXPECT_TRUE(session.refreshCheck.pressed);
}

TEST_F(Refresh, AFolderThatIsGoneIsToldOnceAndLosesNoCard)
{
    turnOn();
    const auto shown = session.cardValue;
    const QString away = session.dbPath + QStringLiteral("-away");
    ASSERT_TRUE(QDir().rename(session.dbPath, away));
    ASSERT_TRUE(QTest::qWaitFor([] { return !refreshTimer().isActive(); }));
    EXPECT_FALSE(session.refreshCheck.pressed);
    EXPECT_THAT(recorded.messages, ElementsAre(QStringLiteral("Error|Path not found")));
    EXPECT_EQ(session.numCards, 3);
    EXPECT_EQ(session.cardValue, shown);
    EXPECT_TRUE(session.box[3].visible);

    setRefresh(QStringLiteral("On"));
    EXPECT_FALSE(session.refreshCheck.pressed);
    EXPECT_EQ(recorded.messages.size(), 2);
    ASSERT_TRUE(QDir().rename(away, session.dbPath));
    setRefresh(QStringLiteral("On"));
    EXPECT_TRUE(session.refreshCheck.pressed);
    EXPECT_EQ(session.numCards, 3);
}

TEST_F(Refresh, NoTickRunsUnderAModalWindow)
{
    turnOn();
    writeCard(session.dbPath, cardName(4), QStringLiteral("new"), QStringLiteral("05550444"), qRgb(0, 0, 90));
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
    desktop.showMessage = [&](MessageIcon, const QString&, const QString&) {
        mostOpen = std::max(mostOpen, ++open);
        ++shown;
        QTest::qWait(30); // six ticks long
        --open;
    };
    QFile::remove(file(2, ".bmp"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown >= 2; }));
    EXPECT_EQ(mostOpen, 1);
    setRefresh(QStringLiteral("Off"));
}
