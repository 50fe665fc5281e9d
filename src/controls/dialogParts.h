// Small parts that the dialogs are made of.
#pragma once

#include <QLabel>
#include <QPushButton>

#include <functional>

/// Sets the object name, by which style sheet and tests find the control.
template <class Control>
Control* named(Control* control, const char* name)
{
    control->setObjectName(QLatin1String(name));
    return control;
}

/// The same for an element of a group of controls: "DataBox7".
template <class Control>
Control* element(Control* control, const char* group, int number)
{
    control->setObjectName(QLatin1String(group) + QString::number(number));
    return control;
}

/// A label in one of the style sheet's roles: "heading", "subHeading", "explanation". Plain text, wrapped.
QLabel* words(const QString& text, const char* role = "");

/// A label that shows a picture and is hidden from assistive technology.
QLabel* pictureLabel(const QString& name, QSize size);

/// A button with an icon only: `meaning` is its name for assistive technology, `hint` its tool tip, if any.
QPushButton* iconButton(const QString& picture, const QString& meaning = {}, const QString& hint = {});

/// The layout doesn't change when the widget is hidden or shown.
void keepPlaceWhenHidden(QWidget& widget);

/// Runs the handler at every click. An error shows the error box and ends the handler.
void onClick(QAbstractButton* button, const std::function<void()>& handler);

/// The same for a handler that opens dialogs. It runs from the event loop, so that a screen reader that
/// pressed the button doesn't have to wait until the dialog is closed.
void onClickLater(QAbstractButton* button, const std::function<void()>& handler);

/// Runs the handler whenever the button is ticked or unticked, by the user or by code.
void onToggle(QAbstractButton* button, const std::function<void(bool ticked)>& handler);

/// Makes Tab lead to the chosen option. Qt does so only after one of them has had the focus.
void letTabFindTheChosen(std::initializer_list<QAbstractButton*> options);

/// Sets the Tab order: each control leads to the next.
void chainTabs(std::initializer_list<QWidget*> controls);

/// The lowest line of a dialog, the same in all: the video or other help on the left, the answers on the
/// right.
QLayout* answerRow(QWidget* answers, QWidget* help = nullptr);

/// "Watch a video": starts the tutorial of that name, ignoring any error and clicks that follow too soon.
QPushButton* videoButton(const QString& tutorial = QStringLiteral("Entering Data"));

/// The path of the program that plays the tutorial of that name.
QString tutorialProgram(const QString& tutorial);
/// Starts the tutorial of that name. Raises 53 when it can't be started.
void startTutorial(const QString& tutorial);
