#include "core/tutorial.h"

#include "core/screen.h"
#include "platform/desktop.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"

void watchTutorial(const QString& tutorial)
{
    bool started = false;
    ignoringErrors({[&] {
        startTutorial(tutorial);
        started = true;
    }});
    if (started)
        return;
    desktop.beep();
    if (desktop.ask(QStringLiteral("Confirm"),
                    QStringLiteral("It appears you have not installed the Video Tutorials.\n"
                                   "Would you like to install them now?")))
        screen.installTutorials();
}
