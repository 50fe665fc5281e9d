#include "tools/finding.h"

#include "core/screen.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

namespace {

class Finding : public Fresh {
protected:
    Finding()
    {
        screen.showSpeedWindow = [] { speedChosen(9); };
        for (int row = 0; row < 3; ++row)
            session.findRow[row] = {QStringLiteral("1"), QStringLiteral("Name"), QStringLiteral("includes"),
                                    QString(QChar(char16_t(u'a' + row)))};
    }
};

} // namespace

TEST_F(Finding, JoinsTheConditionsByTheRuleOfTheWords)
{
    // Each card names the conditions that hold for it; the columns follow c0, c1, c2 from none to all.
    const QStringList which = QStringLiteral("-|c|b|bc|a|ac|ab|abc").split(QLatin1Char('|'));
    struct Case {
        const char* joined;
        const char* found;
    };
    constexpr Case cases[] = {
        {"  ", "00001111"},     {"and ", "00000011"}, {"or ", "00111111"},
        {"andand", "00000001"}, {"oror", "01111111"}, {"andor", "01010111"},
        {"orand", "00011111"},  {" and", "00000000"}, {" or", "00000000"},
    };
    for (const Case& each : cases) {
        cards(which);
        QString found;
        for (int card = 1; card <= session.numCards; ++card)
            found += isFound(QLatin1String(each.joined), card) ? QLatin1Char('1') : QLatin1Char('0');
        EXPECT_EQ(found, QLatin1String(each.found)) << each.joined;
    }
}

TEST_F(Finding, FoundCardsRiseExactlyAndTheOthersSinkNearly)
{
    cards({QStringLiteral("a"), QStringLiteral("x"), QStringLiteral("a")});
    runFind();
    EXPECT_EQ(session.foundCount, 2);
    EXPECT_EQ(session.box[1].top, 175);
    EXPECT_EQ(session.box[3].top, 175);
    EXPECT_NEAR(session.box[2].top, 700 - 16 - 60, 10);
    EXPECT_NE(session.box[2].top, 700 - 16 - 60);
    EXPECT_EQ(session.box[1].left, 100);
    EXPECT_EQ(session.searchTitle.text, QStringLiteral("Search for: Name includes a "));
    EXPECT_EQ(session.searchTitle.left, 500 - session.searchTitle.width / 2);
}

TEST_F(Finding, AStoppedRunStillCountsAndAnUnknownRuleMovesNothing)
{
    cards({QStringLiteral("a"), QStringLiteral("a")});
    recorded.inYield = [](int round) {
        if (round == 2)
            stopRun();
    };
    runFind();
    EXPECT_EQ(session.foundCount, 2);
    EXPECT_NEAR(session.box[1].top, 190, 1e-9);
    EXPECT_EQ(session.box[2].top, 200);

    session.andOr[1] = QStringLiteral("and");
    cards({QStringLiteral("a")});
    runFind();
    EXPECT_EQ(session.foundCount, 0);
    EXPECT_EQ(session.box[1].top, 200);
    EXPECT_EQ(session.searchTitle.text, QStringLiteral("Search for: Name includes a and Name includes c "));
}
