// What the routines on pixels promise, tried on random pictures and shapes.
#include "paint/blit.h"
#include "paint/canvas.h"
#include "paint/floodFill.h"
#include "paint/raster.h"

#include <gmock/gmock.h>

#include <QPainter>

#include <random>

namespace {

constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb red = 0xFFFF0000;
constexpr QRgb colours[] = {white, red, 0xFF0000FF};

QImage randomPicture(std::mt19937& chance, QSize size, unsigned kinds)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, colours[chance() % kinds]);
    }
    return picture;
}

/// Spreads the colour from pixel to pixel until nothing changes any more.
QImage filledSlowly(QImage picture, QPoint from, QRgb colour)
{
    const QRgb old = picture.pixel(from);
    QImage reached(picture.size(), QImage::Format_RGB32);
    reached.fill(Qt::black);
    reached.setPixel(from, white);
    for (bool grew = true; grew;) {
        grew = false;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const auto isReached = [&](int atX, int atY) {
                    return reached.valid(atX, atY) && reached.pixel(atX, atY) == white;
                };
                if (picture.pixel(x, y) != old || isReached(x, y) ||
                    !(isReached(x - 1, y) || isReached(x + 1, y) || isReached(x, y - 1) ||
                      isReached(x, y + 1)))
                    continue;
                reached.setPixel(x, y, white);
                grew = true;
            }
        }
    }
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (reached.pixel(x, y) == white)
                picture.setPixel(x, y, colour);
        }
    }
    return picture;
}

/// The pixels of the colour, a '#' for each, row by row.
QString drawn(const QImage& picture, QRgb colour = red)
{
    QString rows;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            rows += QLatin1Char(picture.pixel(x, y) == colour ? '#' : '.');
        rows += QLatin1Char('\n');
    }
    return rows;
}

Canvas redPen(QSize size, int width)
{
    Canvas canvas(size);
    canvas.foreColour = canvas.fillColour = red;
    canvas.penWidth = width;
    return canvas;
}

} // namespace

TEST(FloodFill, FillsWhatASlowSecondFillDoes)
{
    std::mt19937 chance(1);
    for (int round = 0; round < 300; ++round) {
        const QSize size(1 + int(chance() % 24), 1 + int(chance() % 24));
        QImage picture = randomPicture(chance, size, 2 + chance() % 2);
        const QPoint from(int(chance() % unsigned(size.width())), int(chance() % unsigned(size.height())));
        const QRgb colour = colours[chance() % 3];
        const QImage expected = filledSlowly(picture, from, colour);
        floodFill(picture, from, colour);
        ASSERT_EQ(picture, expected) << "round " << round;
        floodFill(picture, {size.width(), 0}, 0xFF00FF00);
        ASSERT_EQ(picture, expected) << "beside the picture, round " << round;
    }
}

TEST(TransparentBlit, IsSourceInvertMaskAndSourceInvert)
{
    std::mt19937 chance(2);
    for (int round = 0; round < 300; ++round) {
        QImage target = randomPicture(chance, {20, 15}, 3);
        const QImage source = randomPicture(chance, {9, 9}, 3);
        const QPoint at(int(chance() % 40) - 12, int(chance() % 30) - 10);
        const QRgb clear = colours[chance() % 3];
        QImage expected = target;
        for (int y = 2; y < 9; ++y) {
            for (int x = 1; x < 9; ++x) {
                const QPoint to = at + QPoint(x - 1, y - 2);
                const QRgb pixel = source.pixel(x, y);
                const QRgb mask = pixel == clear ? 0xFFFFFFFF : 0;
                if (expected.valid(to))
                    expected.setPixel(to, 0xFF000000 | (((expected.pixel(to) ^ pixel) & mask) ^ pixel));
            }
        }
        transparentBlit(target, at, {8, 7}, source, {1, 2}, clear);
        ASSERT_EQ(target, expected) << "round " << round;
    }
}

TEST(Canvas, DrawsDotsBoxesAndLinesToThePixel)
{
    struct Case {
        const char* what;
        int width;
        void (*draw)(Canvas&);
        const char* picture;
    };
    const Case cases[] = {
        {"a dot of the wide pen is round", 8,
         [](Canvas& canvas) {
             canvas.line({4, 4}, {4, 4});
         },
         "..####..\n.######.\n########\n########\n########\n########\n.######.\n..####..\n"},
        {"a dot of the thin pen is square", 2,
         [](Canvas& canvas) {
             canvas.line({1, 1}, {1, 1});
         },
         "##......\n##......\n........\n........\n........\n........\n........\n........\n"},
        {"a box has its corners", 2,
         [](Canvas& canvas) {
             canvas.box({6, 5}, {2, 1});
         },
         ".######.\n.######.\n.##..##.\n.##..##.\n.######.\n.######.\n........\n........\n"},
        {"a box without a size is a dot", 2,
         [](Canvas& canvas) {
             canvas.box({3, 3}, {3, 3});
         },
         "........\n........\n..##....\n..##....\n........\n........\n........\n........\n"},
        {"a filled box has both corners", 2,
         [](Canvas& canvas) {
             canvas.filledBox({5, 1}, {2, 3});
         },
         "........\n..####..\n..####..\n..####..\n........\n........\n........\n........\n"},
        {"a line slants without steps", 2,
         [](Canvas& canvas) {
             canvas.line({1, 1}, {6, 6});
         },
         "##......\n###.....\n.###....\n..###...\n...###..\n....###.\n.....##.\n........\n"},
        {"a circle without a radius is a dot", 2,
         [](Canvas& canvas) {
             canvas.circle({0, 3}, 0);
         },
         "........\n........\n#.......\n#.......\n........\n........\n........\n........\n"},
    };
    for (const Case& c : cases) {
        Canvas canvas = redPen({8, 8}, c.width);
        c.draw(canvas);
        EXPECT_EQ(drawn(canvas.image).toStdString(), c.picture) << c.what;
    }
}

TEST(Canvas, AnEllipseIsTheSameAllRoundAndHoldsTheFill)
{
    std::mt19937 chance(3);
    for (int round = 0; round < 60; ++round) {
        const double radius = 3 + int(chance() % 77);
        const double aspect = (1 + int(chance() % 100)) / 25.0;
        Canvas canvas = redPen({170, 170}, 2);
        canvas.circle({85, 85}, radius, aspect);
        EXPECT_EQ(canvas.image, canvas.image.mirrored(true, false)) << radius << " by " << aspect;
        EXPECT_EQ(canvas.image, canvas.image.mirrored(false, true)) << radius << " by " << aspect;
        const QPoint edge = aspect > 1 ? QPoint(85, int(85 - radius)) : QPoint(int(85 - radius), 85);
        EXPECT_EQ(canvas.point(edge), red) << "the radius lies on the longer axis";
        floodFill(canvas.image, {0, 0}, 0xFF00FF00);
        if (radius * std::min(aspect, 1 / aspect) >= 3) {
            EXPECT_EQ(canvas.point({85, 85}), white) << "the fill ran in at " << radius << " by " << aspect;
        }
    }
}

TEST(Canvas, WritesHardEdgedTextFromThePenDown)
{
    Canvas canvas = redPen({120, 40}, 2);
    canvas.pen = {4, 6};
    canvas.print(QStringLiteral("Bär"));
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 120; ++x)
            EXPECT_TRUE(canvas.point({x, y}) == white || canvas.point({x, y}) == red);
    }
    const QString rows = drawn(canvas.image);
    EXPECT_GE(rows.indexOf(QLatin1Char('#')), 6 * 121);
    EXPECT_LT(rows.lastIndexOf(QLatin1Char('#')), (6 + canvas.textHeight()) * 121);
    EXPECT_EQ(canvas.pen, QPointF(0, 6 + canvas.textHeight()));
}
