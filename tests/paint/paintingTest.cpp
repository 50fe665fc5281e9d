// The tools as a hand uses them, without a window.
#include "paint/painter.h"

#include "paint/tools.h"
#include "paint/typing.h"
#include "support/files.h"

#include <random>

using testing::ElementsAre;

namespace {

constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb darkRed = 0xFFC00000; // the first colour

class PaintingCards : public Fresh {
protected:
    PaintingCards()
    {
        card.fill(Qt::white);
        openPainting(painting, card);
    }

    void drag(int tool, QPoint from, QPoint to, bool shifted = false)
    {
        clickTool(painting, tool);
        mouseDown(painting, {from, true, shifted});
        mouseMove(painting, {to, true, shifted});
        mouseUp(painting, {to, false, shifted});
    }

    /// The rectangle around all that is no longer white.
    QRect painted() const
    {
        QRect area;
        for (int y = 0; y < canvasSize.height(); ++y) {
            for (int x = 0; x < canvasSize.width(); ++x) {
                if (painting.Picture1.point({x, y}) != white)
                    area |= QRect(x, y, 1, 1);
            }
        }
        return area;
    }

    QImage card{159, 120, QImage::Format_RGB32};
    Painting painting;
};

QRect between(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

} // namespace

TEST_F(PaintingCards, ShapesLieWhereTheGridAndShiftPutThem)
{
    struct Case {
        const char* what;
        int tool;
        QPoint from, to;
        bool shifted;
        QRect painted;
    };
    const Case cases[] = {
        {"to the nearest lines", 2, {7, 16}, {41, 53}, false, between(11, 11, 36, 48)},
        {"from right to left", 2, {41, 53}, {7, 16}, false, between(11, 11, 36, 48)},
        {"ends at 312", 3, {290, 5}, {317, 17}, false, between(288, 0, 312, 12)},
        {"beyond the edges", 2, {-7, -7}, {1000, 1000}, false, QRect()},
        {"a square of the smaller span", 3, {24, 24}, {100, 50}, true, between(24, 24, 48, 48)},
        {"a square up and left", 3, {96, 96}, {50, 20}, true, between(48, 48, 96, 96)},
        {"a click draws a point", 2, {25, 25}, {25, 25}, false, between(23, 23, 24, 24)},
        {"an ellipse between the corners", 4, {24, 24}, {96, 60}, false, between(23, 23, 96, 60)},
        {"an ellipse of a click", 4, {24, 24}, {24, 24}, false, between(22, 22, 25, 25)},
        {"a circle of the smaller span", 5, {24, 24}, {96, 60}, true, between(23, 23, 60, 60)},
        {"a circle straight down", 5, {24, 24}, {24, 60}, true, between(0, 23, 0, 24)},
        {"a line", 6, {13, 13}, {59, 13}, false, between(11, 11, 60, 12)},
        {"a line held straight", 6, {12, 12}, {72, 24}, true, between(11, 11, 73, 12)},
        {"a brush follows the mouse", 1, {20, 30}, {50, 30}, false, between(16, 26, 53, 33)},
        {"spray falls round the mouse", 11, {100, 100}, {100, 100}, false, between(100, 100, 100, 100)},
        {"no zoom", 10, {20, 30}, {50, 30}, false, QRect()},
    };
    for (const Case& c : cases) {
        openPainting(painting, card);
        drag(c.tool, c.from, c.to, c.shifted);
        EXPECT_EQ(painted(), c.painted) << c.what;
        undo(painting);
        EXPECT_EQ(painted(), QRect()) << c.what;
    }
}

TEST_F(PaintingCards, OnlyWhatWasTouchedChangesOnTheWayThroughTheEditor)
{
    std::mt19937 chance(4);
    for (int y = 0; y < card.height(); ++y) {
        for (int x = 0; x < card.width(); ++x)
            card.setPixel(x, y, 0xFF000000 | chance());
    }
    openPainting(painting, card);
    EXPECT_EQ(paintedCard(painting, card.size()), card);
    drag(3, {24, 24}, {59, 59});
    const QImage kept = paintedCard(painting, card.size()); // 12..29 are painted, 30 is painted by half
    for (const QRect& untouched :
         {QRect(0, 0, 159, 12), QRect(0, 12, 12, 108), QRect(31, 12, 128, 108), QRect(12, 31, 19, 89)})
        EXPECT_EQ(kept.copy(untouched), card.copy(untouched));
    const QImage square = plain({18, 18}, darkRed);
    EXPECT_EQ(kept.copy(12, 12, 18, 18), square);
}

TEST_F(PaintingCards, TheTextBoxGrowsAndIsStampedWithItsMargin)
{
    selectColour(painting, 18);
    drag(7, {40, 60}, {40, 60});
    EXPECT_TRUE(painting.Text1.visible);
    EXPECT_EQ(painting.Text1.top, 60 - painting.Text1.height / 2);
    changeText(painting, QStringLiteral("Über den Wolken"));
    const double grown = painting.Text1.width;
    EXPECT_EQ(grown, painting.Picture1.textWidth(QStringLiteral("WWÜber den Wolken")));
    selectTool(painting, 9);
    EXPECT_TRUE(painting.Text1.visible) << "another tool leaves it";
    changeText(painting, QStringLiteral("Ü"));
    EXPECT_EQ(painting.Text1.width, grown);
    stampText(painting);
    EXPECT_FALSE(painting.Text1.visible);
    EXPECT_TRUE(painting.Text1.text.isEmpty());
    EXPECT_TRUE(QRect(42, 48, 16, 24).contains(painted()));
    undo(painting);
    EXPECT_EQ(painted(), QRect());
    stampText(painting);
    EXPECT_EQ(painted(), QRect()) << "nothing to write";
}

TEST_F(PaintingCards, SprayTakesThePensColourAndWhiteLeavesNoMark)
{
    recorded.randoms = {0, 0, 0.999, 0.999};
    clickTool(painting, 11);
    mouseDown(painting, {{50, 50}});
    EXPECT_EQ(painting.Picture1.point({42, 42}), darkRed);
    EXPECT_EQ(painting.Picture1.point({57, 57}), darkRed);
    selectColour(painting, 20);
    mouseDown(painting, {{100, 100}});
    EXPECT_EQ(painted(), between(42, 42, 57, 57));
}

TEST_F(PaintingCards, OpeningChoosesAnewAndForgetsAnOpenText)
{
    drag(7, {40, 60}, {40, 60});
    changeText(painting, QStringLiteral("left over"));
    selectTool(painting, 6);
    EXPECT_TRUE(painting.guides.visible);
    openPainting(painting, card);
    EXPECT_FALSE(painting.guides.visible);
    EXPECT_FALSE(painting.Text1.visible);
    EXPECT_TRUE(painting.Text1.text.isEmpty());
    EXPECT_EQ(painting.Picture1.foreColour, darkRed);
    EXPECT_EQ(painting.Picture1.penWidth, 2);
    EXPECT_EQ(errorOf([this] { selectTool(painting, 13); }), outOfRange);
    EXPECT_EQ(errorOf([this] { selectColour(painting, 26); }), outOfRange);
}
