#include "platform/owningWindow.h"

#include <QApplication>
#include <QWidget>

QWidget* owningWindow(const QWidget* dialog)
{
    const auto owns = [dialog](const QWidget* window) {
        return window && window != dialog && window->isVisible() &&
               (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
    };
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.prepend(QApplication::activeWindow());
    windows.prepend(QApplication::activeModalWidget());
    const auto found = std::find_if(windows.begin(), windows.end(), owns);
    return found == windows.end() ? nullptr : *found;
}
