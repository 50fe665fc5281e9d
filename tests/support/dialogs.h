// Dialogs in tests, used as a pupil does: parts by their names, clicks, and what is done in the next dialog.
#pragma once

#include "support/freshStart.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include <stdexcept>
#include <type_traits>

/// The part of that name; the test ends with an exception when there is none.
template <class Control = QPushButton>
Control& part(const QWidget& dialog, const char* name)
{
    auto* found = dialog.findChild<Control*>(QLatin1String(name));
    if (found == nullptr)
        throw std::runtime_error(std::string("no ") + name);
    return *found;
}

/// Clicks a control in its middle and runs the events that it queued. A window that the click closed stays
/// alive, though it may have been unloaded, until events run again.
inline void press(QWidget* control)
{
    const QWidget* window = control->window();
    QTest::mouseClick(control, Qt::LeftButton);
    if (window->isVisible())
        QCoreApplication::processEvents();
}
inline void press(const QWidget& dialog, const char* name) { press(&part<QWidget>(dialog, name)); }

/// Drops a file on a widget as another program does.
inline void dropFile(QWidget& widget, const QString& path)
{
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(path), QUrl::fromLocalFile(QStringLiteral("/other"))});
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &enter);
    QDropEvent event(QPointF(9, 9), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Prepares what the pupil does in the next modal dialog that isn't prepared yet, which is a `Form`.
template <class Form = QDialog>
void inDialog(const std::function<void(std::type_identity_t<Form>&)>& act)
{
    recorded.dialogSteps.push_back([act](QDialog& dialog) { act(dynamic_cast<Form&>(dialog)); });
}
