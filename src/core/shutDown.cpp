#include "core/shutDown.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/forms.h"
#include "store/cardFiles.h"

#include <QCoreApplication>

void shutDown()
{
    session.animationStopped = true; // a run that yields to us finds no board any more, and says nothing
    desktop.beep = [] {};
    desktop.showMessage = [](MessageIcon, const QString&, const QString&) {};
    deleteAnswers();
    unloadAllForms();
    deleteAnswers(); // what a window wrote when it was unloaded
    QCoreApplication::exit();
}

bool endingOnError(const std::function<void()>& routine)
{
    if (withErrorBox(routine))
        return true;
    shutDown();
    return false;
}
