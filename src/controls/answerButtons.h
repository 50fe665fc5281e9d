// The OK and Cancel of every dialog: two buttons with icons that are animated while visible.
#pragma once

#include "controls/forms.h"

#include <QDialog>
#include <QPushButton>
#include <QTimer>

/// The object name and the text of an answer's button, which differ between dialogs.
struct Answer {
    const char* name;
    QString text;
};

class AnswerButtons : public QWidget {
    Q_OBJECT
public:
    explicit AnswerButtons(const Answer& okAnswer = {"ok_but", QStringLiteral("OK")},
                           const Answer& cancelAnswer = {"cancel_but", QStringLiteral("Cancel")});

    QPushButton* const ok;
    QPushButton* const cancel;
    QTimer* const Timer1; // 100 ms, runs while the buttons are in view

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showFrame(int number);

    int frame = 0;
};

/// A dialog with two answers. Escape and the window's close button press Cancel; Return presses the focused
/// button, else OK. Its opener uses ask() of controls/forms.h.
class AnswerDialog : public QDialog {
    Q_OBJECT
public:
    void reject() override;

    /// Sets the answer that ask() returns and hides the dialog, which stays loaded.
    void answer(const QString& word);
    /// The buttons answer "OK" and "Cancel", and do nothing else.
    void answerByButtons();

    AnswerButtons* const answers; // placed by the dialog's layout

protected:
    explicit AnswerDialog(AnswerButtons* buttons);
    void changeEvent(QEvent* event) override;
};

/// The same, but unloads the form.
template <class F>
void answerAndUnload(const QString& word)
{
    form<F>().answer(word);
    unload<F>();
}
