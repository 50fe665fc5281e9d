// Asks whether to leave the program. No command opens it.
#pragma once

#include "controls/answerButtons.h"

class ExitForm : public AnswerDialog {
    Q_OBJECT
public:
    ExitForm();
    void load() {}
};
