// "Statistics": a calculator over one field whose results pile up on a roll of paper.
#pragma once

#include "controls/answerButtons.h"

#include <QPlainTextEdit>

class QComboBox;

class statsForm : public AnswerDialog {
    Q_OBJECT
public:
    statsForm();
    void load();

    /// Offers the fields of the open database and empties the roll.
    void prepare();

    QComboBox* const fieldCombo;
    QComboBox* const functionCombo;
    QPushButton* const equalsBut;
    QPlainTextEdit* const display;
    QPushButton* const copyBut;
    QPushButton* const ClearBut;
    QString TxtDate; // of the day on which the form was loaded

private:
    QLayout* calculator();
    QLayout* roll();
    void connectControls();
    void offerFunctions();
    void calculate();
    void addToRoll(const QString& result);
    void copyRoll();
};
