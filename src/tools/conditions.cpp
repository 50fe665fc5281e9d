#include "tools/conditions.h"

#include "core/session.h"
#include "platform/values.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace {

struct TextWord {
    const char* word;
    bool (*holds)(const QString& cardText, const QString& wanted);
};

// Every text begins and ends with an empty value. QString::startsWith() returns false for a null string.
constexpr TextWord textWords[] = {
    {"is", [](const QString& c, const QString& v) { return c == v; }},
    {"is not", [](const QString& c, const QString& v) { return c != v; }},
    {"includes", [](const QString& c, const QString& v) { return c.contains(v); }},
    {"starts with", [](const QString& c, const QString& v) { return c.left(v.size()) == v; }},
    {"ends with", [](const QString& c, const QString& v) { return c.right(v.size()) == v; }},
    {"comes before", [](const QString& c, const QString& v) { return c < v; }},
    {"comes after", [](const QString& c, const QString& v) { return c > v; }},
};

struct NumberWord {
    const char* word;
    bool (*holds)(double cardNumber, double wanted);
};

constexpr NumberWord numberWords[] = {
    {"=", [](double c, double v) { return c == v; }},  {">", [](double c, double v) { return c > v; }},
    {"<", [](double c, double v) { return c < v; }},   {">=", [](double c, double v) { return c >= v; }},
    {"<=", [](double c, double v) { return c <= v; }}, {"<>", [](double c, double v) { return c != v; }},
};

template <class Words>
QStringList listed(const Words& words)
{
    QStringList list;
    for (const auto& each : words)
        list.append(QString::fromLatin1(each.word));
    return list;
}

template <class Words, class Value>
bool holds(const Words& words, const QString& word, const Value& cardValue, const Value& wanted)
{
    for (const auto& each : words) {
        if (word == QLatin1String(each.word))
            return each.holds(cardValue, wanted);
    }
    return false;
}

} // namespace

QString adjustCase(const QString& text)
{
    if (session.options.caseSensitive)
        return text;
    QString capitals = text;
    for (QChar& character : capitals)
        character = character.toUpper();
    return capitals;
}

QString filterNumeric(const QString& text)
{
    QString kept;
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
                 [](QChar character) { return u"0123456789+-."_s.contains(character); });
    return kept;
}

QStringList comparisonWords(const QString& fieldType)
{
    return fieldType == "Abc"_L1 ? listed(textWords) : listed(numberWords);
}

bool testCondition(int row, int card)
{
    const FindRow& condition = session.findRow[row];
    const int field = condition.fieldTag.toInt();
    const QString cardText = adjustCase(session.cardValue[card][field]);
    const QString wanted = adjustCase(condition.value);
    if (session.fieldType[field] == "Abc"_L1)
        return holds(textWords, condition.word, cardText, wanted);
    return holds(numberWords, condition.word, leadingNumber(cardText), leadingNumber(wanted));
}

QString conditionText(int row)
{
    const FindRow& condition = session.findRow[row];
    return condition.field + u' ' + condition.word + u' ' + condition.value + u' ';
}
