// Asks for one of six layouts and shows a small preview of it.
#pragma once

#include "controls/answerButtons.h"

class QComboBox;

class moveForm : public AnswerDialog {
    Q_OBJECT
public:
    moveForm();
    void load() {}

    /// Fills the list and picks "Top", which draws the first preview.
    void prepare();
    QString chosen() const;

private:
    void showPreview();

    QComboBox* const moveCombo;
    QWidget* const preview;
    QList<QWidget*> smallBox;
};
