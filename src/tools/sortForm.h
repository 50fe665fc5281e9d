// Asks by which field and in which direction the cards are sorted.
#pragma once

#include "controls/answerButtons.h"

class QComboBox;
class QRadioButton;

class sortForm : public AnswerDialog {
    Q_OBJECT
public:
    sortForm();
    void load() {}

    /// Offers the fields of the open database. The direction is that of the last sort.
    void prepare();

private:
    QComboBox* const sortCombo;
    QRadioButton* const sortOptUp;
    QRadioButton* const sortOptDown;
};
