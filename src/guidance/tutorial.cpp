#include "guidance/tutorial.h"

#include "controls/dialogParts.h"
#include "core/mainView.h"
#include "platform/desktop.h"
#include "platform/errors.h"

using namespace Qt::StringLiterals;

void watchTutorial(const QString& tutorial)
{
    bool started = false;
    ignoringErrors({[&] {
        startTutorial(tutorial);
        started = true;
    }});
    if (!started)
        offerTutorials();
}

void offerTutorials()
{
    desktop.sound.beep();
    if (desktop.boxes.ask(u"Confirm"_s, u"It appears you have not installed the Video Tutorials.\n"
                                        "Would you like to install them now?"_s))
        mainView.installTutorials();
}
