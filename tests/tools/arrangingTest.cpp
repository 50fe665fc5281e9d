#include "tools/arranging.h"

#include "support/freshStart.h"

using namespace Qt::StringLiterals;

using Arranging = Fresh;

TEST_F(Arranging, OfNoCardsDoesNothing)
{
    for (const QString& word : arrangements())
        arrangeCards(word);
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(Arranging, PreviewsTheTilesInTwoRows)
{
    EXPECT_EQ(arrangementPreview(u"Tiled"_s)[4], QPointF(88, 106));
    EXPECT_EQ(arrangementPreview(u"Right"_s)[5], QPointF(248, 210));
}
