// Reminds the pupil how to go on once the cards are designed.
#pragma once

#include "platform/answerButtons.h"

class QCheckBox;

class frmRemind : public AnswerDialog {
    Q_OBJECT
public:
    frmRemind();
    void load() {}

    QCheckBox* const ChkRemind;
};
