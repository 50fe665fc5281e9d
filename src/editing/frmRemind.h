// Reminds the pupil of the next step after designing the cards.
#pragma once

#include "controls/answerButtons.h"

class QCheckBox;

class frmRemind : public AnswerDialog {
    Q_OBJECT
public:
    frmRemind();
    void load() {}

    QCheckBox* const ChkRemind;
};
