#include "tools/conditions.h"

#include "support/cards.h"
#include "support/freshStart.h"

namespace {

class Conditions : public Fresh {
protected:
    bool holds(const QString& type, const QString& cardText, const QString& word, const QString& value)
    {
        cards({cardText}, type);
        session.findRow[0].word = word;
        session.findRow[0].value = value;
        return testCondition(0, 1);
    }
};

struct Case {
    const char* card;
    const char* word;
    const char* value;
    bool holds;
};

constexpr Case textCases[] = {
    {"Cat", "is", "cat", true},
    {"Cat", "is", "", false},
    {"", "is", "", true},
    {"Cat", "is not", "CAT", false},
    {"Cat", "includes", "A", true},
    {"", "includes", "", true},
    {"Cat", "starts with", "ca", true},
    {"Cat", "starts with", "Catt", false},
    {"Cat", "ends with", "AT", true},
    {"Cat", "ends with", "", true},
    {"Cat", "comes before", "", false},
    {"Cat", "comes after", "", true},
    {"", "comes after", "", false},
    {"10", "comes before", "9", true},
    {"Cat", "", "Cat", false},
    {"3", "=", "3", false},
};

constexpr Case numberCases[] = {
    {"12 cats", "=", "12", true}, {"", "=", "0", true},      {"cats", "=", "0", true},
    {"10", ">", "9", true},       {"9.5", "<", "10", true},  {"-3", "<", "-2", true},
    {"2", ">=", "2.0", true},     {"1e2", "=", "100", true}, {"2", "<=", "1", false},
    {"2", "<>", "2.5", true},     {" 7", "=", "7", true},    {"2", "is", "2", false},
    {"2", "", "2", false},
};

} // namespace

TEST_F(Conditions, CompareTextByCharactersAndNumbersByTheirLeadingDigits)
{
    for (const Case& each : textCases)
        EXPECT_EQ(holds(QStringLiteral("Abc"), QLatin1String(each.card), QLatin1String(each.word),
                        QLatin1String(each.value)),
                  each.holds)
            << each.card << ' ' << each.word << ' ' << each.value;
    for (const Case& each : numberCases)
        EXPECT_EQ(holds(QStringLiteral("123"), QLatin1String(each.card), QLatin1String(each.word),
                        QLatin1String(each.value)),
                  each.holds)
            << each.card << ' ' << each.word << ' ' << each.value;
}

TEST_F(Conditions, CapitalsComeFirstOnceCaseCounts)
{
    EXPECT_FALSE(holds(QStringLiteral("Abc"), QStringLiteral("Zoo"), QStringLiteral("comes before"),
                       QStringLiteral("ape")));
    session.caseSensitive = true;
    EXPECT_TRUE(holds(QStringLiteral("Abc"), QStringLiteral("Zoo"), QStringLiteral("comes before"),
                      QStringLiteral("ape")));
    EXPECT_FALSE(
        holds(QStringLiteral("Abc"), QStringLiteral("Cat"), QStringLiteral("is"), QStringLiteral("cat")));
}

TEST_F(Conditions, ReadTheFieldFromTheTagAndRefuseOneOutsideTheTable)
{
    session.fieldType[2] = QStringLiteral("123");
    session.cardValue[4][2] = QStringLiteral("7");
    session.findRow[2] = {QStringLiteral("2"), {}, QStringLiteral("="), QStringLiteral("7")};
    EXPECT_TRUE(testCondition(2, 4));
    EXPECT_THROW(testCondition(2, 101), RuntimeError);
    session.findRow[2].fieldTag = QStringLiteral("13");
    EXPECT_THROW(testCondition(2, 4), RuntimeError);
}

TEST_F(Conditions, OnlyTheCharactersOfNumbersMayBeTyped)
{
    EXPECT_EQ(filterNumeric(QStringLiteral("a+1,2.3-x")), QStringLiteral("+12.3-"));
}
