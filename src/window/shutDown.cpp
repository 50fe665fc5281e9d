#include "window/shutDown.h"

#include "controls/forms.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "store/questionFiles.h"

void shutDown()
{
    session.run.stopped = true; // ends a run in progress without a message
    desktop.sound.beep = [] {};
    desktop.boxes.showMessage = [](MessageIcon, const QString&, const QString&) {};
    deleteAnswers();
    unloadAllForms();
    deleteAnswers(); // again: windows may have written answers when they were unloaded
    desktop.endProgram();
}

bool endingOnError(const std::function<void()>& routine)
{
    if (withErrorBox(routine))
        return true;
    shutDown();
    return false;
}
