#include "analysis/statistics.h"

#include "platform/errors.h"
#include "platform/values.h"
#include "support/cards.h"
#include "support/freshStart.h"

using namespace Qt::StringLiterals;

namespace {

class Statistics : public Fresh {
protected:
    Statistics() { session.fieldName[1] = u"Legs"_s; }
};

} // namespace

TEST_F(Statistics, CalculateOverTheLeadingNumbers)
{
    const struct {
        QStringList values;
        QString function;
        QString result;
    } cases[] = {
        {{u"4"_s, u""_s, u"x"_s}, u"Total"_s, u"Legs Total = 4"_s},
        {{u"4"_s, u""_s, u"x"_s}, u"Mean"_s, u"Legs Mean = 1.33"_s},
        {{u"4"_s, u""_s, u"x"_s}, u"Minimum"_s, u"Legs Minimum = 0"_s},
        {{u"4"_s, u""_s, u"x"_s}, u"Maximum"_s, u"Legs Maximum = 4"_s},
        {{u"4"_s, u""_s, u"x"_s}, u"Range"_s, u"Legs Range = 4"_s},
        {{u"12cm"_s, u"0.1"_s, u"0.2"_s}, u"Total"_s, u"Legs Total = 12.3"_s},
        {{u"2.345"_s}, u"Mean"_s, u"Legs Mean = 2.35"_s},
        {{u"-2.345"_s}, u"Mean"_s, u"Legs Mean = -2.34"_s},
        {{u"100000000"_s, u"200000000"_s}, u"Minimum"_s, u"Legs Minimum = 99999999"_s},
        {{u"-100000000"_s}, u"Maximum"_s, u"Legs Maximum = -99999999"_s},
        {{u"1E300"_s}, u"Mean"_s, u"Legs Mean = 1E+300"_s},
        {{u"4"_s}, u""_s, u""_s},
        {{u"4"_s}, u"Count"_s, u""_s},
    };
    for (const auto& [values, function, result] : cases) {
        cards(values, u"123"_s);
        EXPECT_EQ(statisticsResult(function), result);
    }
    cards({u"1E308"_s, u"1E308"_s}, u"123"_s);
    EXPECT_THROW(statisticsResult(u"Maximum"_s), RuntimeError) << "the total is beyond a double";
}

TEST_F(Statistics, CountGroupsAsTheyAreFirstMet)
{
    cards({u"b"_s, u"a"_s, u"b"_s});
    EXPECT_EQ(statisticsResult(u"Count"_s), u"Legs Count groups:\r\nb = 2\r\na = 1\r\n"_s);
    EXPECT_EQ(statisticsResult(u"Percentages"_s), u"Legs Count groups:\r\nb = 66.67 %\r\na = 33.33 %\r\n"_s);
    cards({u""_s}, u"any other type"_s);
    EXPECT_EQ(statisticsResult(u"Count"_s), u"Legs Count groups:\r\n = 1\r\n"_s);
    EXPECT_EQ(statisticsResult(u"Mean"_s), QString());
}
