#include "editing/fieldDefinition.h"

#include "editing/design.h"

namespace {

QString onOneLine(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar end :
         {QChar('\r'), QChar('\n'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        text.replace(end, QLatin1Char(' '));
    return text;
}

} // namespace

FieldDefinition fieldDefinition(int f)
{
    FieldDefinition definition{session.fieldName[f], fieldTypeWord(f), session.fieldUseList[f], {}};
    if (definition.useList)
        definition.answers = session.fieldListItem[f];
    return definition;
}

void defineField(int f, const FieldDefinition& definition)
{
    session.fieldName[f] = onOneLine(definition.name);
    session.fieldType[f] = definition.type;
    session.fieldUseList[f] = definition.useList;
    if (!definition.useList)
        return;
    for (int item = 1; item <= 12; ++item)
        session.fieldListItem[f][item] = onOneLine(definition.answers[item]);
}

bool answerTakesKey(const QString& type, QChar key)
{
    return type == QLatin1String("Abc") || (key >= QLatin1Char('/') && key <= QLatin1Char('9'));
}
