#include "controls/typographicQuotes.h"

#include "platform/textFile.h"

#include <QLineEdit>

void takeTypographicQuotes(QLineEdit* box)
{
    QObject::connect(box, &QLineEdit::textEdited, box, [box](const QString& text) {
        const QString quoted = withTypographicQuotes(text);
        if (quoted == text)
            return;
        const int caret = box->cursorPosition();
        box->setText(quoted);
        box->setCursorPosition(caret);
    });
}
