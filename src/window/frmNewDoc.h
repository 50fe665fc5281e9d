// The welcome dialog: how to begin.
#pragma once

#include "controls/answerButtons.h"

#include <QLabel>
#include <QRadioButton>

class QGridLayout;
class QGroupBox;

class frmNewDoc : public AnswerDialog {
    Q_OBJECT
public:
    frmNewDoc();
    /// Offers the last database if the settings contain one.
    void load();

    QRadioButton* const Option1;
    QRadioButton* const Option2;
    QRadioButton* const Option3;
    QRadioButton* const Option4;
    QLabel* const lblPath;
    QString TxtPath; // the last database's folder

private:
    QGroupBox* choices();
    void addChoice(QGridLayout& grid, QRadioButton* option, const char* pictureName, QLabel* explanation);
    void orderKeys(QWidget* video);
    void begin();
};
