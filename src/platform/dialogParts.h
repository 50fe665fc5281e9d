// Small parts that the dialogs are put together from.
#pragma once

#include <QLabel>
#include <QPushButton>

#include <functional>

/// Gives the control its name, by which style sheet and tests find it.
template <class Control>
Control* named(Control* control, const char* name)
{
    control->setObjectName(QLatin1String(name));
    return control;
}

/// A label in one of the style sheet's roles: "heading", "subHeading", "explanation". Plain text, wrapped.
QLabel* words(const QString& text, const char* role = "");

/// A label that shows a picture and that assistive technology passes over.
QLabel* pictureLabel(const QString& name, QSize size);

/// Nothing moves when the widget is hidden or shown.
void keepPlaceWhenHidden(QWidget& widget);

/// Runs the handler at every click; an error ends it in the general error box.
void onClick(QAbstractButton* button, const std::function<void()>& handler);

/// The same for a handler that opens dialogs: it runs from the event loop, so that whoever pressed the
/// button, such as a screen reader, doesn't wait for them.
void onClickLater(QAbstractButton* button, const std::function<void()>& handler);

/// Runs the handler whenever the button is ticked or unticked, by hand or by the program.
void onToggle(QAbstractButton* button, const std::function<void(bool ticked)>& handler);

/// Tab leads to the option that is chosen. Qt sees to that itself only once one of them has had the focus.
void letTabFindTheChosen(std::initializer_list<QAbstractButton*> options);

/// "Watch a video": starts the tutorial of that name ("Entering Data") and passes over any error.
QPushButton* videoButton(const QString& tutorial);

/// Starts the tutorial of that name. Raises 53 when it can't be started.
void startTutorial(const QString& tutorial);
