// The OK and Cancel of every dialog: two buttons whose icons move while they are in view.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTimer>

/// The name and the text of an answer's button: they differ from dialog to dialog.
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

/// A dialog that is left by one of its two answers: Escape and the frame's close box press Cancel, Return the
/// button that has the focus, else OK.
class AnswerDialog : public QDialog {
    Q_OBJECT
public:
    void reject() override;

protected:
    explicit AnswerDialog(AnswerButtons* buttons);
    void changeEvent(QEvent* event) override;

    AnswerButtons* const answers; // for the dialog to lay out
};
