#include "core/startUp.h"

#include "core/Form1.h"
#include "core/FrmStlogo.h"
#include "core/frmNewDoc.h"
#include "core/shutDown.h"
#include "core/startValues.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "platform/picture.h"
#include "platform/realDesktop.h"
#include "platform/wavePlayer.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QTimer>

namespace {

void dressApplication()
{
    QApplication::setApplicationName(QStringLiteral("tallymoor"));
    QApplication::setWindowIcon(QIcon(picturePath(QStringLiteral("tallymoor"))));
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFile sheet(QStringLiteral(":/tallymoor.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

} // namespace

int runTallymoor()
{
    dressApplication();
    installDesktop();
    askForPrintersEarly();
    QApplication::setQuitOnLastWindowClosed(false); // shutDown() ends the program, in order
    QTimer::singleShot(0, [] { endingOnError(startUp); });
    const int result = QApplication::exec();
    leaveSound();
    return result;
}

void startUp()
{
    showModal(form<FrmStlogo>());
    Form1& window = form<Form1>();
    setStartValues();
    window.layoutWindow();
    window.showControls();
    window.resize(desktop.screenSize() * 0.8); // when it is no longer maximised
    window.showMaximized();
    showModal(form<frmNewDoc>());
}
