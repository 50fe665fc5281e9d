#include "controls/plainText.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

QString typedText(const QPlainTextEdit& box, const QString& lineBreak)
{
    QString text = box.document()->toRawText(); // toPlainText() makes blanks of no-break spaces
    text.replace(QChar(QChar::ParagraphSeparator), u"\r\n"_s);
    return text.replace(QChar(QChar::LineSeparator), lineBreak);
}
