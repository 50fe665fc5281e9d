#include "window/startUp.h"

#include "controls/application.h"
#include "controls/dialogFocus.h"
#include "controls/forms.h"
#include "controls/returnInLists.h"
#include "platform/desktop.h"
#include "platform/printers.h"
#include "platform/realDesktop.h"
#include "platform/soundDevices.h"
#include "store/options.h"
#include "window/Form1.h"
#include "window/FrmStlogo.h"
#include "window/assembly.h"
#include "window/frmNewDoc.h"
#include "window/shutDown.h"
#include "window/startValues.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// On Wayland a dialog belongs to the main window, and gets the keyboard, only when that is on the screen
/// already.
void waitUntilOnScreen(const QWidget& window)
{
    constexpr int mostRounds = 100; // in case it isn't shown at all, as on a locked screen
    QTimer round;
    round.start(10); // ms
    for (int i = 0; i < mostRounds && !window.windowHandle()->isExposed(); ++i)
        desktop.waitForEvents();
}

} // namespace

QString chosenScale()
{
    installDesktop();
    return read(option::displayScale);
}

int runTallymoor()
{
    dressApplication();
    keepReturnInLists();
    keepFocusInDialogs();
    installDesktop();
    askForPrintersEarly();
    QApplication::setQuitOnLastWindowClosed(false); // shutDown() ends the program, in order
    QTimer::singleShot(0, [] { endingOnError(startUp); });
    const int result = desktop.runProgram();
    soundDevices::leave();
    return result;
}

void startUp()
{
    connectHooks();
    showModal(form<FrmStlogo>());
    Form1& window = form<Form1>();
    setStartValues();
    window.layoutWindow();
    window.showControls();
    QRect restored({}, desktop.screen.size() * 0.8); // when it is no longer maximised
    restored.moveCenter(QRect({}, desktop.screen.size()).center());
    window.setGeometry(restored);
    window.showMaximized();
    waitUntilOnScreen(window);
    if (!isLoaded<Form1>())
        return; // closed meanwhile
    showModal(form<frmNewDoc>());
}
