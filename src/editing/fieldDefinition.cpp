#include "editing/fieldDefinition.h"

#include "editing/design.h"

using namespace Qt::StringLiterals;

namespace {

QString onOneLine(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    for (const QChar end :
         {QChar('\r'), QChar('\n'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        text.replace(end, u' ');
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
    for (int item = 1; item <= lastAnswer; ++item)
        session.fieldListItem[f][item] = onOneLine(definition.answers[item]);
}

bool answerTakesKey(const QString& type, QChar key)
{
    return type == "Abc"_L1 || (key >= u'/' && key <= u'9');
}
