#include "tools/grouping.h"

#include "core/screen.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

using testing::ElementsAre;

namespace {

class Grouping : public Fresh {
protected:
    Grouping()
    {
        screen.showSpeedWindow = [] { speedChosen(9); };
    }

    QStringList labels()
    {
        QStringList texts;
        for (int g = 1; g <= session.numGroups; ++g)
            texts.append(session.GroupLabel[g].text);
        return texts;
    }

    static QStringList words(const char* text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); }
};

} // namespace

TEST_F(Grouping, PutsTheFullestFirstAndKeepsTheFirstSpelling)
{
    cards(words("dog cat Cat 1 1.0 cAT dog"), QStringLiteral("123"));
    buildGroups(1);
    EXPECT_EQ(labels(), words("cat dog 1 1.0"));
    session.caseSensitive = true;
    buildGroups(1);
    EXPECT_EQ(labels(), words("dog cat Cat 1 1.0 cAT"));
}

TEST_F(Grouping, SendsTheTwelfthValueToOther)
{
    cards(words("a b c d e f g h i j k l l a"));
    buildGroups(1);
    EXPECT_EQ(labels(), words("a l b c d e f g h i j")); // k came last of the single ones
    EXPECT_EQ(session.GroupLabel[0].text, QStringLiteral("Other"));
    EXPECT_EQ(session.GroupLabel[0].left, 11 * 83); // Int(1000 / 12)

    moveCardsToGroups(1);
    const double centre = session.GroupLabel[0].left + session.GroupLabel[0].width / 2;
    EXPECT_EQ(session.box[11].left + session.box[11].width / 2, centre);
    EXPECT_NE(session.box[12].left + session.box[12].width / 2, centre);
}

TEST_F(Grouping, ColumnsGrowUpwardsAndOverlapOnlyAsFarAsTheyMust)
{
    cards(words("a a a b"));
    buildGroups(1);
    moveCardsToGroups(1);
    const double floor = session.GroupLabel[1].top;
    EXPECT_EQ(session.box[1].top, floor - 60);
    EXPECT_EQ(session.box[3].top, floor - 2 * 59 - 60);
    EXPECT_EQ(session.cardStack.fromBelow()[0], 4); // the newest lies lowest

    cards(QStringList(30, QStringLiteral("a")));
    buildGroups(1);
    moveCardsToGroups(1);
    EXPECT_DOUBLE_EQ(session.box[30].top, floor - 29 * (644 / 31.0) - 60); // Int(684 - 40) / (30 + 1) a card
}

TEST_F(Grouping, OfNoCardsShowsOtherAloneAcrossTheBoard)
{
    cards({});
    buildGroups(1);
    moveCardsToGroups(1);
    EXPECT_EQ(session.GroupLabel[0].left, 0);
    EXPECT_EQ(session.GroupLabel[0].width, 1000);
    EXPECT_TRUE(recorded.messages.isEmpty());
}
