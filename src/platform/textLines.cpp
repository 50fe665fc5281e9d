#include "platform/textLines.h"

#include <QFontMetrics>
#include <QTextLayout>

QString textInLines(const QString& text, const QFont& font, int width, int lines)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList broken;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (broken.size() == lines - 1) {
            broken.append(QFontMetrics(font).elidedText(text.mid(line.textStart()), Qt::ElideMiddle, width));
            break;
        }
        broken.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return broken.join(u'\n');
}
