#include "platform/values.h"

#include "support/files.h"

#include <QLocale>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr double largest = std::numeric_limits<double>::max();

} // namespace

TEST(Values, TakeTheLongestNumberThatATextBeginsWith)
{
    const struct {
        const char* text;
        double number;
    } cases[] = {
        {"", 0},       {"cats", 0},    {"12 cats", 12}, {" \t 12", 12},     {"-3.5kg", -3.5},
        {"+7", 7},     {"1.2.3", 1.2}, {".5", 0.5},     {"5.", 5},          {".", 0},
        {"-", 0},      {"- 5", 0},     {"1e3", 1000},   {"1E-2x", 0.01},    {"2e", 2},
        {"2e+", 2},    {"2eggs", 2},   {"1 2", 1},      {"1,5", 1},         {"&H10", 0},
        {"inf", 0},    {"nan", 0},     {"0x10", 0},     {"1e999", largest}, {"-1e999", -largest},
        {"1e-999", 0}, {"\n5", 0},     {"00123", 123},  {"--5", 0},         {"5e-1e3", 0.5},
    };
    for (const auto& [text, number] : cases)
        EXPECT_EQ(leadingNumber(QString::fromLatin1(text)), number) << '"' << text << '"';
    EXPECT_EQ(leadingNumber(u"٣"_s), 0) << "digits of other scripts are no digits";
    EXPECT_EQ(leadingNumber(QString(100'000, u'9')), largest);
}

TEST(Values, ACommaIsAPointWhereTheCountryWritesItSo)
{
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(withDecimalPoints(u"4,5"_s), u"4.5"_s);
    QLocale::setDefault(QLocale(QLocale::English));
    EXPECT_EQ(withDecimalPoints(u"4,5"_s), u"4,5"_s);
    QLocale::setDefault(QLocale::system());
}

TEST(Values, RoundHalvesToTheEvenInteger)
{
    const std::pair<double, int> cases[] = {{0.5, 0},
                                            {1.5, 2},
                                            {2.5, 2},
                                            {-0.5, 0},
                                            {-1.5, -2},
                                            {2.4999, 2},
                                            {32767.4999, 32767},
                                            {32766.5, 32766},
                                            {-32768.5, -32768}};
    for (const auto& [number, integer] : cases)
        EXPECT_EQ(toInteger(number), integer) << number;
    for (const double outside : {32767.5, -32768.6, 1e300, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(errorOf([&] { toInteger(outside); }), overflow) << outside;
}
