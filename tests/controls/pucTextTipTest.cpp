#include "controls/pucTextTip.h"

#include "support/freshStart.h"

using namespace Qt::StringLiterals;

namespace {

class TipBalloon : public Fresh {
protected:
    TipBalloon()
    {
        balloon.resize(200, 60);
        balloon.show();
    }
    pucTextTip balloon{u"Tip1"_s};
};

const QString manyWords = u"a tip that runs on and on "_s.repeated(12);

} // namespace

TEST_F(TipBalloon, BothMarksBreakTheLineAndNothingElseIsMarkUp)
{
    balloon.setText(u"one<CR>two<B>three <b>&amp;</b>"_s);
    EXPECT_EQ(balloon.text(), u"one<B>two<B>three <b>&amp;</b>"_s);
    EXPECT_EQ(balloon.lblTip->text(), u"one\ntwo\nthree <b>&amp;</b>"_s);
    EXPECT_EQ(balloon.txtTip->toPlainText(), balloon.lblTip->text());
    EXPECT_EQ(balloon.lblTip->textFormat(), Qt::PlainText);
}

TEST_F(TipBalloon, ATextTooTallScrollsUntilThereIsRoomForIt)
{
    balloon.setText(manyWords);
    EXPECT_TRUE(balloon.txtTip->isVisible());
    EXPECT_FALSE(balloon.lblTip->isVisible());
    EXPECT_EQ(balloon.txtTip->geometry(), QRect(8, 6, 184, 48));

    balloon.resize(200, 900);
    EXPECT_TRUE(balloon.lblTip->isVisible());
    EXPECT_FALSE(balloon.txtTip->isVisible());

    balloon.setText(QString());
    EXPECT_TRUE(balloon.lblTip->text().isEmpty());
}

TEST_F(TipBalloon, APictureMovesTheTextAndWrapsItAnew)
{
    balloon.resize(200, 900);
    balloon.setText(manyWords);
    const int before = balloon.lblTip->height();
    balloon.setPicture(plain({100, 20}, Qt::red));
    EXPECT_EQ(balloon.imgPicture->pos(), QPoint(8, 6));
    EXPECT_EQ(balloon.lblTip->x(), 116);
    EXPECT_EQ(balloon.lblTip->width(), 76);
    EXPECT_GT(balloon.lblTip->height(), before);

    balloon.setPicture({});
    EXPECT_EQ(balloon.lblTip->x(), 8);
}

TEST_F(TipBalloon, IsLaidOutAsItWasKept)
{
    pucTextTip kept(u"Tip2"_s, nullptr, {QFont(u"Arial"_s, 20), plain({30, 20}, Qt::red), QString()});
    kept.resize(200, 60);
    EXPECT_TRUE(kept.text().isEmpty());
    EXPECT_EQ(kept.tipFont().pointSizeF(), 20);
    EXPECT_EQ(kept.lblTip->x(), 46);
}

TEST_F(TipBalloon, TheWindowBehindShowsThroughItsCorners)
{
    EXPECT_FALSE(balloon.mask().contains(QPoint(0, 0)));
    EXPECT_FALSE(balloon.mask().contains(QPoint(199, 59)));
    EXPECT_TRUE(balloon.mask().contains(QPoint(0, 30)));
    EXPECT_TRUE(balloon.mask().contains(QPoint(3, 3)));
}
