#include "analysis/report.h"

#include "core/session.h"
#include "platform/errors.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

namespace {

/// The report on cards of three fields A, B and C.
QString reportOn(const QString& reportTemplate, const QList<QStringList>& cards)
{
    session.numCards = int(cards.size());
    for (int f = 1; f <= 3; ++f) {
        session.fieldName[f] = QString(QChar(char16_t(u'A' + f - 1)));
        for (int card = 1; card <= session.numCards; ++card)
            session.cardValue[card][f] = cards[card - 1].value(f - 1);
    }
    QString report;
    appendReport(reportTemplate, report);
    return report;
}

} // namespace

using Report = Fresh;

TEST_F(Report, FillsTheTagsOfEachCard)
{
    const struct {
        const char* text;
        QList<QStringList> cards;
        const char* report;
    } cases[] = {
        {"<<A>> eats <<B>>", {{"Cat", "mice"}, {"Cow", "hay"}}, "Cat eats mice \r\nCow eats hay \r\n"},
        {"", {{"Cat"}, {"Cow"}}, " \r\n \r\n"},
        {"<<a>><<D>><A>> <<A>", {{"Cat"}}, "<<a>><<D>><A>> <<A> \r\n"},
        {"<<A>>", {{"<<B>> and <<C>>", "x<<C>>", "y"}}, "xy and y \r\n"}, // later fields in values are filled
        {"<<B>>", {{"x", "<<A>>"}}, "<<A>> \r\n"},                        // earlier ones aren't
        {"<<A>><<A>>", {{""}}, "<<A>> \r\n"}, // the search goes on one character behind an empty value
        {"<<A>><<A>>", {{"1"}}, "11 \r\n"},
        {"<<A>>", {{"<<A>>"}}, "<<A>> \r\n"}, // back at the same place, where the search has been
        {"<<A>>>", {{"x<<A>"}}, "xx<<A> \r\n"},
    };
    for (const auto& [text, cards, report] : cases)
        EXPECT_EQ(reportOn(QString::fromLatin1(text), cards), QString::fromLatin1(report)) << text;
}

TEST_F(Report, StopsWhereASearchGetsBeyondItsLastCharacter)
{
    const QString longest(32766 + 5 - 1, u'x'); // the search ends a tag before the end
    EXPECT_EQ(reportOn(longest, {{}}).size(), longest.size() + 3);
    EXPECT_EQ(errorOf([&] { reportOn(longest + u'x', {{}}); }), overflow);
    const QString grows = u"y<<A>>"_s + QString(300, u'z');
    const QStringList bomb = {QString(u"<<B>>"_s).repeated(999), QString(u"<<C>>"_s).repeated(999), longest};
    for (const QStringList& values : {QStringList(u"y<<A>>"_s), QStringList(grows), bomb})
        EXPECT_EQ(errorOf([&] { reportOn(u"<<A>>"_s, {values}); }), overflow);
    session.cardValue[1][1] = u"first"_s;
    session.cardValue[2][1] = grows;
    session.numCards = 2;
    QString report;
    EXPECT_EQ(errorOf([&] { appendReport(u"<<A>>"_s, report); }), overflow);
    EXPECT_EQ(report, u"first \r\n"_s);
}
