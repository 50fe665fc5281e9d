// Asks whether to delete a card, showing the card's face.
#pragma once

#include "controls/answerButtons.h"

class QLabel;

class warnForm : public AnswerDialog {
    Q_OBJECT
public:
    warnForm();
    void load() {}

    /// Shows the card in the question; the window is widened for a long label.
    void askAbout(int card);

private:
    QLabel* const ActionPic;
    QLabel* const DiBoxCaption;
};

/// For a card dropped on the bin: asks, and deletes it after OK. The card shown in the question is deleted
/// even if its number has changed meanwhile.
void checkDropOnBin(int card);
void confirmDelete(int card);
