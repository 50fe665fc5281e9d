#include "controls/dialogFocus.h"

#include <QGuiApplication>
#include <QWindow>

void keepFocusInDialogs()
{
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp, [](const QWindow* focused) {
        QWindow* dialog = QGuiApplication::modalWindow();
        if (!dialog || !focused || focused == dialog)
            return;
        if (focused->type() == Qt::Window || focused->type() == Qt::Dialog) // not one of the dialog's lists
            dialog->requestActivate();
    });
}
