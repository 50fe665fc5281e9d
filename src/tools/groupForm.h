// Asks by which field the cards are grouped.
#pragma once

#include "platform/answerButtons.h"

class QComboBox;

class groupForm : public AnswerDialog {
    Q_OBJECT
public:
    groupForm();
    void load() {}

    /// Offers the fields of the open database, the first one picked.
    void prepare();

private:
    QComboBox* const groupCombo;
};
