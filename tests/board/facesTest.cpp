#include "board/faces.h"

#include "core/session.h"
#include "store/cardFiles.h"
#include "support/freshStart.h"

using namespace Qt::StringLiterals;

namespace {

bool isNear(QRgb one, QRgb other)
{
    const auto near = [](int a, int b) { return std::abs(a - b) < 110; };
    return near(qRed(one), qRed(other)) && near(qGreen(one), qGreen(other)) && near(qBlue(one), qBlue(other));
}

/// The smallest rectangle, in device pixels, around all pixels of about that colour: edges are smoothed.
QRect extentOf(const QImage& image, QRgb colour)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isNear(image.pixel(x, y), colour))
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

constexpr QRgb black = 0xff000000, blue = 0xff0000ff, red = 0xffff0000, white = 0xffffffff;

class Faces : public Fresh {
protected:
    Faces()
    {
        session.numCards = 1;
        session.cardSize = 1;
        session.cardValue[1][1] = u"Ina"_s;
        session.options.ColText = u"255"_s;
    }
    const QImage& face() const { return session.box[1].picture; }
};

} // namespace

TEST_F(Faces, StretchTheWholePictureBoxOverTheCardWhoseMeasuresAreTheSurfaces)
{
    session.cardSize = 0;
    session.cardValue[1][1].clear();
    session.editor.Picture1.image = plain(QSize(80, 60), Qt::blue); // half of the picture box
    drawCardFace(1);
    EXPECT_EQ(face().size(), QSize(82, 62)) << "not the card size's";
    EXPECT_EQ(QSizeF(session.box[1].width, session.box[1].height), QSizeF(82, 62));
    EXPECT_EQ(session.editor.shrinkdummy.image, face());
    EXPECT_EQ(face().pixel(2, 2), blue);
    EXPECT_NEAR(extentOf(face(), blue).right(), 41, 2);
    EXPECT_EQ(face().pixel(60, 45), white);
}

TEST_F(Faces, PrintTheLabelInItsColourOverABlackShadow)
{
    session.editor.Picture1.image = plain(QSize(159, 120), Qt::white);
    drawCardFace(1);
    const QRect label = extentOf(face(), red);
    const QRect shadow = extentOf(face(), black);
    ASSERT_FALSE(label.isEmpty());
    EXPECT_NEAR(label.height(), 9, 1) << "capitals of ten points at 96 dots to the inch";
    EXPECT_NEAR(shadow.right(), label.right() + 1, 1);
    EXPECT_EQ(shadow.bottom(), label.bottom() + 1);

    session.cardValue[1][1] = QString(40, u'W');
    drawCardFace(1);
    EXPECT_GT(extentOf(face(), red).right(), 75) << "a long label runs to the card's edge";
    EXPECT_EQ(session.box[1].tooltip.size(), 40);
}

TEST_F(Faces, OfStripsAreTheLabelAloneInBlack)
{
    session.cardSize = 2;
    session.editor.Picture1.image = plain(QSize(159, 120), Qt::red);
    drawCardFace(1);
    EXPECT_EQ(face().pixel(0, 0), blue) << "the point in the corner";
    EXPECT_TRUE(extentOf(face(), red).isEmpty());
    EXPECT_FALSE(extentOf(face(), black).isEmpty());
    EXPECT_EQ(face().pixel(80, 60), white);
}

TEST_F(Faces, AreAsSharpAsTheScreen)
{
    session.editor.Picture1.image = plain(QSize(159, 120), Qt::white);
    drawCardFace(1);
    const QRect single = extentOf(face(), red);
    desktop.screen.pixelRatio = [] { return 2.0; };
    drawCardFace(1);
    EXPECT_EQ(face().size(), QSize(164, 124));
    EXPECT_EQ(face().devicePixelRatio(), 2);
    EXPECT_EQ(session.box[1].width, 82);
    EXPECT_NEAR(extentOf(face(), red).height(), 2 * single.height(), 2);

    const QImage onPaper =
        cardFace(plain(QSize(159, 120), Qt::white), u"Ina"_s, {{82, 62}, 6, false, Qt::red});
    EXPECT_EQ(onPaper.size(), QSize(492, 372));
    EXPECT_NEAR(extentOf(onPaper, red).height(), 6 * single.height(), 6);
}

TEST_F(Faces, ResizingGivesAllCardsTheMeasuresOfTheNewSizeAndDrawsThemFromTheirFiles)
{
    session.dbPath = testFolder().chopped(1);
    session.numCards = 2;
    session.cardId[1] = u"AAAAAAAA"_s;
    session.cardId[2] = u"BBBBBBBB"_s;
    plain(QSize(159, 120), Qt::red).save(testFolder() + u"AAAAAAAA.bmp"_s);
    plain(QSize(159, 120), Qt::blue).save(testFolder() + u"BBBBBBBB.bmp"_s);
    const QSize sizes[] = {{40, 30}, {80, 60}, {80, 24}};
    for (const qint16 size : {0, 1, 2}) {
        session.cardSize = size;
        resizeAllCards();
        EXPECT_EQ(QSize(session.editor.shrinkdummy.width, session.editor.shrinkdummy.height), sizes[size]);
        for (const int card : {0, 1, 2}) {
            EXPECT_EQ(session.box[card].width, sizes[size].width());
            EXPECT_EQ(session.box[card].height, sizes[size].height());
        }
        EXPECT_EQ(session.box[1].picture.size(), sizes[size]);
        const QRgb inTheCorner =
            session.box[2].picture.pixel(sizes[size].width() - 1, sizes[size].height() - 1);
        EXPECT_EQ(inTheCorner, size == 2 ? white : blue);
    }
    session.cardSize = 7;
    resizeAllCards();
    EXPECT_EQ(session.cardHeight, 24) << "an unknown size leaves the measures";
    EXPECT_TRUE(recorded.messages.empty());
}
