// A painter who does anything at all, thousands of times: nothing breaks, and undo knows what was there.
#include "paint/painter.h"
#include "paint/tools.h"
#include "paint/typing.h"
#include "support/freshStart.h"

#include <random>

namespace {

class RandomPainter : public Fresh {
protected:
    RandomPainter() { openPainting(painting, QImage(159, 120, QImage::Format_RGB32)); }

    int below(int end) { return int(chance() % unsigned(end)); }

    MouseAt mouse()
    {
        const int reach = below(20) == 0 ? 30000 : 400; // now and then far outside
        return {
            {below(2 * reach) - reach + 160, below(2 * reach) - reach + 120}, below(4) > 0, below(3) == 0};
    }

    void actOnce()
    {
        switch (below(12)) {
        case 0:
            return clickTool(painting, below(numTools));
        case 1:
            return selectColour(painting, below(numColours));
        case 2:
            return changeText(painting, QString(below(longestText), QChar(u'a' + below(26))));
        case 3:
            return stampText(painting);
        case 4:
            return below(20) ? undo(painting) : importPicture(painting, QImage());
        case 5:
            return below(40) ? void() : dropPicture(painting, QImage(1 + below(9), 2, QImage::Format_RGB32));
        case 6:
        case 7:
            return mouseUp(painting, mouse());
        case 8:
            return paintAndTakeBack();
        default:
            return mouseMove(painting, mouse());
        }
    }

    void paintAndTakeBack()
    {
        const QImage before = painting.Picture1.image.copy();
        mouseDown(painting, mouse());
        if (below(2))
            return;
        for (int moves = below(4); moves > 0; --moves)
            mouseMove(painting, mouse());
        mouseUp(painting, mouse());
        undo(painting);
        ASSERT_EQ(painting.Picture1.image, before) << "tool " << painting.currentTool;
    }

    std::mt19937 chance{5};
    Painting painting;
};

} // namespace

TEST_F(RandomPainter, LeavesAWholeCanvas)
{
    for (int act = 0; act < 5000 && !HasFatalFailure(); ++act) {
        actOnce();
        ASSERT_EQ(painting.Picture1.image.size(), canvasSize);
        ASSERT_EQ(painting.Picture1.image.format(), QImage::Format_RGB32);
        ASSERT_LE(painting.Text1.text.size(), longestText);
    }
}
