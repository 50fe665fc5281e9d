#include "tools/arranging.h"

#include "support/cards.h"
#include "support/freshStart.h"

namespace {

class Arranging : public Fresh {
protected:
    static QPointF at(int card) { return {session.box[card].left, session.box[card].top}; }
};

} // namespace

TEST_F(Arranging, LaysLinesAlongTheEdges)
{
    struct Case {
        const char* word;
        QPointF first;
        QPointF third;
    };
    // Board 1000 by 700, four cards of 80 by 60: pitches 230 and 151.
    const Case cases[] = {
        {"Top", {15, 40}, {15 + 2 * 230, 40}},  {"Bottom", {15, 604}, {15 + 2 * 230, 604}},
        {"Left", {15, 40}, {15, 40 + 2 * 151}}, {"Right", {912, 40}, {912, 40 + 2 * 151}},
        {"Tiled", {15, 40}, {15, 40 + 70}},     {"Sideways", {100, 200}, {100, 200}},
    };
    for (const Case& each : cases) {
        cards({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
        arrangeCards(QLatin1String(each.word));
        EXPECT_EQ(at(1), each.first) << each.word;
        EXPECT_EQ(at(3), each.third) << each.word;
    }
    EXPECT_EQ(session.cardStack.fromBelow().back(), 4);
}

TEST_F(Arranging, OfNoCardsDoesNothing)
{
    for (const QString& word : arrangements())
        arrangeCards(word);
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(Arranging, PreviewsTheTilesInTwoRows)
{
    EXPECT_EQ(arrangementPreview(QStringLiteral("Tiled"))[4], QPointF(88, 106));
    EXPECT_EQ(arrangementPreview(QStringLiteral("Right"))[5], QPointF(248, 210));
}
