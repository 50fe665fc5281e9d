#include "platform/fonts.h"

#include "support/freshStart.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

TEST(Fonts, StandInWithOneOfLikeWidthWhereTheNamedOneIsMissing)
{
    if (QFontDatabase::hasFamily(QStringLiteral("Comic Sans MS")))
        GTEST_SKIP() << "the named font is installed";
    QFont font = namedFont(QStringLiteral("Comic Sans MS"), 10);
    font.setBold(true);
    QFont plain(QStringLiteral("Comic Neue"), 10);
    plain.setBold(true);
    EXPECT_EQ(QFontInfo(font).family(), QStringLiteral("Comic Neue"));

    // As it comes, the stand-in is 0.88 as wide as the named font.
    const QString label = QStringLiteral("Wobbly Monster with 3 eyes");
    const double widened =
        QFontMetricsF(font).horizontalAdvance(label) / QFontMetricsF(plain).horizontalAdvance(label);
    EXPECT_NEAR(widened * 0.88, 1, 0.03);
}
