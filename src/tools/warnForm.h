// Asks whether a card shall be deleted, with the card's face in the question.
#pragma once

#include "platform/answerButtons.h"

class QLabel;

class warnForm : public AnswerDialog {
    Q_OBJECT
public:
    warnForm();
    void load() {}

    /// Shows the card in the question; a long label makes the window wide.
    void askAbout(int card);

private:
    QLabel* const ActionPic;
    QLabel* const DiBoxCaption;
};

/// Asks whether the card that was let go shall be deleted when it lies on the bin, and deletes it after an
/// OK: the card that the question showed, whatever has become of its number meanwhile.
void checkDropOnBin(int card);
void confirmDelete(int card);
