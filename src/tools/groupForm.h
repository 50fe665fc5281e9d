// Asks by which field the cards are grouped.
#pragma once

#include "controls/answerButtons.h"

class QComboBox;

class groupForm : public AnswerDialog {
    Q_OBJECT
public:
    groupForm();
    void load() {}

    /// Offers the fields of the open database and picks the first one.
    void prepare();

private:
    QComboBox* const groupCombo;
};
