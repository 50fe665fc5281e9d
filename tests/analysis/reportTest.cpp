#include "analysis/report.h"

#include "core/session.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

using Report = Fresh;

TEST_F(Report, FillsEachCardsValuesIn)
{
    session.numCards = 2;
    for (int f = 1; f <= 3; ++f)
        session.fieldName[f] = QString(QChar(char16_t(u'A' + f - 1)));
    const QString longest(32766 + 5 - 1, u'x'); // a search ends a tag before the end of the text
    const QString bomb = u"<<B>>"_s.repeated(999);
    const struct {
        QString text;
        QStringList values; // of the first card; the second one's are 1, 2 and 3
        QString report;
        int error = 0;
    } cases[] = {
        {u"<<A>> eats <<B>>"_s, {u"Cat"_s, u"mice"_s}, u"Cat eats mice \r\n1 eats 2 \r\n"_s},
        {{}, {}, u" \r\n \r\n"_s},
        {u"<<a>><<D>><A>> <<A>"_s, {u"Cat"_s}, u"<<a>><<D>><A>> <<A> \r\n<<a>><<D>><A>> <<A> \r\n"_s},
        {u"<<A>>"_s, {u"<<B>>, <<C>>"_s, u"x<<C>>"_s, u"y"_s}, u"xy, y \r\n1 \r\n"_s}, // later fields
        {u"<<B>>"_s, {u"x"_s, u"<<A>>"_s}, u"<<A>> \r\n2 \r\n"_s},                     // earlier ones
        {u"<<A>><<A>>"_s,
         {u""_s},
         u"<<A>> \r\n11 \r\n"_s}, // the search is one character behind the tag's start
        {u"<<A>>"_s, {u"<<A>>"_s}, u"<<A>> \r\n1 \r\n"_s},
        {u"<<A>>>"_s, {u"x<<A>"_s}, u"xx<<A> \r\n1> \r\n"_s},
        {longest, {}, (longest + u" \r\n"_s).repeated(2)},
        {longest + u'x', {}, {}, overflow},
        {u"<<A>>"_s, {u"y<<A>>"_s + QString(300, u'z')}, {}, overflow},
        {u"<<A>>"_s, {bomb, QString(bomb).replace(u'B', u'C'), longest}, {}, overflow},
    };
    for (const auto& [text, values, expected, error] : cases) {
        for (int f = 1; f <= 3; ++f) {
            session.cardValue[1][f] = values.value(f - 1);
            session.cardValue[2][f] = QString::number(f);
        }
        QString report;
        EXPECT_EQ(errorOf([&, &text = text] { appendReport(text, report); }), error)
            << text.left(30).toStdString();
        EXPECT_EQ(report, expected);
    }
}
