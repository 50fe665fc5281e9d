#include "analysis/copying.h"

#include "platform/desktop.h"

using namespace Qt::StringLiterals;

void copyText(const QString& text)
{
    desktop.clipboard.clear();
    desktop.clipboard.copyText(text);
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::information, u"Information"_s,
                              u"Information has been copied into Clipboard."_s);
}
