#include "platform/fonts.h"

#include "support/freshStart.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

using namespace Qt::StringLiterals;

TEST(Fonts, StandInWithOneOfLikeWidthWhereTheNamedOneIsMissing)
{
    if (QFontDatabase::hasFamily(u"Comic Sans MS"_s))
        GTEST_SKIP() << "the named font is installed";
    QFont font = namedFont(u"Comic Sans MS"_s, 10);
    font.setBold(true);
    QFont plain(u"Comic Neue"_s, 10);
    plain.setBold(true);
    EXPECT_EQ(QFontInfo(font).family(), u"Comic Neue"_s);

    // Unstretched, the substitute is 0.88 times as wide as the named font.
    const QString label = u"Wobbly Monster with 3 eyes"_s;
    const double widened =
        QFontMetricsF(font).horizontalAdvance(label) / QFontMetricsF(plain).horizontalAdvance(label);
    EXPECT_NEAR(widened * 0.88, 1, 0.03);
}
