#include "analysis/groupTable.h"

#include "platform/errors.h"
#include "support/cards.h"
#include "support/freshStart.h"

using namespace Qt::StringLiterals;

namespace {

QStringList rows()
{
    QStringList rows;
    for (int row = 1; row <= session.groupTable.numTallies; ++row)
        rows << session.groupTable.groupLabel[row] + u'=' +
                    QString::number(session.groupTable.groupTally[row]);
    return rows;
}

QStringList numbersUpTo(int last)
{
    QStringList numbers;
    for (int i = 1; i <= last; ++i)
        numbers << QString::number(i);
    return numbers;
}

class GroupTables : public Fresh {};

} // namespace

TEST_F(GroupTables, CountExactTextsAsTheyAreFirstMet)
{
    cards({u"red"_s, u"Red"_s, u""_s, u"red"_s, u"red "_s, QString()});
    countGroups(1);
    EXPECT_EQ(rows(), QStringList({u"red=2"_s, u"Red=1"_s, u"=2"_s, u"red =1"_s}));
    cards({u"blue"_s});
    countGroups(1);
    EXPECT_EQ(rows(), QStringList(u"blue=1"_s));
    EXPECT_EQ(session.groupTable.groupLabel[2], QString()) << "nothing is left of the last count";
}

TEST_F(GroupTables, EndAtFortyGroups)
{
    cards(numbersUpTo(40));
    countGroups(1);
    EXPECT_EQ(rows().size(), 40);
    EXPECT_EQ(recorded.messages, QStringList());
    cards(numbersUpTo(41));
    countGroups(1);
    EXPECT_EQ(recorded.messages,
              QStringList({u"Tallymoor|Graph Too Complex"_s, u"Error|Subscript out of range - 9"_s}));
    EXPECT_EQ(recorded.beeps, 0);
    EXPECT_THROW(listValues(1), RuntimeError);
}

TEST_F(GroupTables, ListOneNumberForEachCardNamedByTheFirstField)
{
    cards({u"cat"_s, u""_s, u"ant"_s});
    const QString weights[] = {u"4 kg"_s, u"none"_s, u"-2.5"_s};
    for (int card = 1; card <= 3; ++card)
        session.cardValue[card][2] = weights[card - 1];
    listValues(2);
    EXPECT_EQ(rows(), QStringList({u"cat=4"_s, u"=0"_s, u"ant=-2.5"_s}));
    session.cardValue[3][2] = u"1E39"_s;
    EXPECT_THROW(listValues(2), RuntimeError) << "beyond single precision";
}

TEST_F(GroupTables, SortByNumberOnlyWhereNumbersAreCounted)
{
    const struct {
        QString type;
        bool showAll;
        QStringList sorted;
    } cases[] = {
        {u"123"_s, false, {u"2=1"_s, u"9=1"_s, u"10=2"_s, u"10.0=1"_s}},
        {u"123"_s, true, {u"10=2"_s, u"10.0=1"_s, u"2=1"_s, u"9=1"_s}},
        {u"Abc"_s, false, {u"10=2"_s, u"10.0=1"_s, u"2=1"_s, u"9=1"_s}},
        {u""_s, false, {u"2=1"_s, u"9=1"_s, u"10=2"_s, u"10.0=1"_s}}, // only "Abc" counts as text here
    };
    for (const auto& [type, showAll, sorted] : cases) {
        cards({u"10"_s, u"9"_s, u"10.0"_s, u"2"_s, u"10"_s}, type);
        session.graph.showAllData = showAll;
        countGroups(1);
        sortGroups(1);
        EXPECT_EQ(rows(), sorted) << type.toStdString() << showAll;
    }
    cards({u"b"_s, u"A"_s, u"a"_s, u"B"_s});
    countGroups(1);
    sortGroups(1);
    EXPECT_EQ(rows(), QStringList({u"A=1"_s, u"B=1"_s, u"a=1"_s, u"b=1"_s}));
}
