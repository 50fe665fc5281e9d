#include "tools/venn.h"

#include "core/mainView.h"
#include "support/cards.h"
#include "support/freshStart.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

class Venn : public Fresh {
protected:
    Venn()
    {
        mainView.showSpeedWindow = [] { session.run.animationSpeed = 10; };
        for (const int row : {0, 1})
            session.findRow[row] = {"1", "Name", "includes", row == 0 ? "a" : "b"};
    }

    static QPointF centre(int card)
    {
        const CardImage& image = session.box[card];
        return {image.left + image.width / 2, image.top + image.height / 2};
    }

    enum Meeting { notAtAll, partly, wholly };

    static Meeting meeting(const BoardShape& circle, int card)
    {
        const double r = circle.width / 2;
        const double x = std::abs(centre(card).x() - circle.left - r);
        const double y = std::abs(centre(card).y() - circle.top - r);
        const double w = session.box[card].width / 2;
        const double h = session.box[card].height / 2;
        if (std::hypot(x + w, y + h) <= r)
            return wholly;
        return std::hypot(std::max(x - w, 0.0), std::max(y - h, 0.0)) >= r ? notAtAll : partly;
    }

    static bool liesTrue(int card)
    {
        const QString& value = session.cardValue[card][1];
        return meeting(session.board.VennLeftCircle, card) == (value.contains('a') ? wholly : notAtAll) &&
               meeting(session.board.VennRightCircle, card) == (value.contains('b') ? wholly : notAtAll);
    }
};

} // namespace

TEST_F(Venn, IsTrueOnEveryBoard)
{
    mainView.showSpeedWindow = [] { session.run.animationSpeed = 1e9; };
    cards({"ab", "a", "b", "", "ab", "a", "b", "", "ab", "a", "b", "ab", "a", "b", "a", "b"});
    struct {
        double width, height, faceWidth, faceHeight;
    } const sizes[] = {{80, 60, 82, 62}, {80, 24, 82, 24}, {40, 30, 40, 30}};
    for (const auto& [width, height, faceWidth, faceHeight] : sizes) {
        session.cardWidth = width;
        session.cardHeight = height;
        for (int card = 1; card <= session.numCards; ++card)
            session.box[card].width = faceWidth, session.box[card].height = faceHeight;
        for (session.board.width = 800; session.board.width <= 3840; session.board.width += 37) {
            for (session.board.height = 500; session.board.height <= 2100; session.board.height += 29) {
                session.run.stopped = false;
                runVenn([] {});
                for (int card = 1; card <= session.numCards; ++card)
                    ASSERT_TRUE(liesTrue(card)) << card << " of " << width << " wide on "
                                                << session.board.width << " x " << session.board.height;
            }
        }
    }
}

TEST_F(Venn, ACardThatChangesItsRegionInTheMiddleDividesByNothing)
{
    cards({"a", "a"});
    recorded.inYield = [](int) { session.cardValue[2][1] = u"b"_s; };
    runVenn([] {});
    EXPECT_NEAR(centre(2).x(), 402 + 277.5, 1);
    EXPECT_TRUE(recorded.messages.isEmpty());
}
