#include "tools/sorting.h"

#include "core/screen.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "tools/pacing.h"

using testing::ElementsAre;

namespace {

class Sorting : public Fresh {
protected:
    Sorting()
    {
        screen.showSpeedWindow = [this] { speedChosen(9), speedWindowOpen = true; };
        screen.unloadSpeedWindow = [this] { stopRun(), speedWindowOpen = false; };
    }

    bool speedWindowOpen = false;
};

} // namespace

TEST_F(Sorting, TakesEqualKeysFromTheHighestNumberDown)
{
    cards({QStringLiteral("pear"), QStringLiteral("apple"), QStringLiteral("Apple")});
    sortTextUp(1);
    EXPECT_THAT(cardsByTop(), ElementsAre(3, 2, 1));
    sortTextDown(1);
    EXPECT_THAT(cardsByTop(), ElementsAre(1, 3, 2));
    session.caseSensitive = true;
    sortTextUp(1);
    EXPECT_THAT(cardsByTop(), ElementsAre(3, 2, 1));
}

TEST_F(Sorting, ChoosesTheRoutineByTypeAndDirection)
{
    struct Case {
        const char* type;
        const char* direction;
        std::vector<int> order;
    };
    const Case cases[] = {
        {"Abc", "ABC", {4, 2, 1, 3}},                               // "", "10", "9", "two"
        {"Abc", "CBA", {3, 1, 2, 4}}, {"123", "ABC", {4, 3, 1, 2}}, // a word and an empty value count as 0
        {"123", "CBA", {2, 1, 4, 3}}, {"123", "other", {2, 1, 4, 3}}, {"Abc", "other", {4, 2, 1, 3}},
    };
    for (const Case& each : cases) {
        cards({QStringLiteral("9"), QStringLiteral("10"), QStringLiteral("two"), QString()},
              QLatin1String(each.type));
        session.sortDirection = QLatin1String(each.direction);
        sortByChosenField();
        EXPECT_EQ(cardsByTop(), each.order) << each.type << ' ' << each.direction;
        EXPECT_FALSE(speedWindowOpen);
    }
}

TEST_F(Sorting, LaysADiagonalThatOverlapsByHalfAtMost)
{
    cards({QStringLiteral("a"), QStringLiteral("b")});
    sortTextUp(1);
    EXPECT_EQ(session.box[1].left, 15);
    EXPECT_EQ(session.box[1].top, 40);
    EXPECT_EQ(session.box[2].left, 55);
    EXPECT_EQ(session.box[2].top, 70);
    EXPECT_EQ(session.cardStack.fromBelow().back(), 2);

    QStringList many;
    for (int i = 0; i < 99; ++i)
        many.append(QString::number(i));
    cards(many, QStringLiteral("123"));
    sortNumbersUp(1);
    EXPECT_EQ(session.box[99].left, 15 + 98 * 9); // Int((1000 - 15 - 80) / 99)
    EXPECT_EQ(session.box[99].top, 40 + 98 * 6);
}

TEST_F(Sorting, OfNoCardsIsReportedAndLeavesTheSpeedWindow)
{
    cards({});
    sortTextUp(1);
    EXPECT_THAT(recorded.messages, ElementsAre(QStringLiteral("Error|Division by zero")));
    EXPECT_TRUE(speedWindowOpen);
}

TEST_F(Sorting, PassesOverARoundThatFindsNoCard)
{
    cards({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}, QStringLiteral("123"));
    recorded.inYield = [](int) { session.cardValue[3][1] = QStringLiteral("99"); }; // beyond the seed by now
    sortNumbersUp(1);
    EXPECT_TRUE(session.cardPlaced[1]);
    EXPECT_TRUE(session.cardPlaced[2]);
    EXPECT_FALSE(session.cardPlaced[3]);
    EXPECT_TRUE(recorded.messages.isEmpty());
}
