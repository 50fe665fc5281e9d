// The help window: the guide, the tutorials, and what is new in this version.
#pragma once

#include "controls/answerButtons.h"

#include <QAction>
#include <QLabel>
#include <QList>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QToolBar>

class FrmHelp : public AnswerDialog {
    Q_OBJECT
public:
    FrmHelp();
    /// Reads what is new.
    void load();

    QToolBar* const TB1; // turns between the two pages
    QAction* const helpPage;
    QAction* const newsPage;
    QWidget* const F1; // the frame of the options
    QLabel* const Label1;
    QList<QRadioButton*> options; // Option1 and those after it
    QPlainTextEdit* const RTFNew; // what is new

private:
    void fillToolbar();
    void fillChoices();
    void turnToPage(const QAction* page);
    void showAnswer();
    void run();
};
