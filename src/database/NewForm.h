// "New Database Wizard": the name of a new database and the place of its folder.
#pragma once

#include "controls/answerButtons.h"

class FittedLabel;
class QAction;
class QLabel;
class QLineEdit;
class QRadioButton;
class QToolButton;
class WizardPages;
class pucTextTip;

class NewForm : public AnswerDialog {
    Q_OBJECT
public:
    NewForm();
    /// Shows the welcome page and finds the folder for new databases from settings and desktop.
    void load();

    QLabel* const lblCap;
    QLabel* const lblSubCap;
    QWidget* const F1; // welcome
    QWidget* const F2; // name
    QWidget* const F3; // location
    QLineEdit* const DBName;
    QRadioButton* const Option1;
    QRadioButton* const Option2;
    FittedLabel* const LblCustDir;
    QLabel* const Label3;
    pucTextTip* const Tip2;
    QPushButton* const N1;
    QPushButton* const N2;
    QPushButton* const B2;
    QToolButton* const BtnVid;
    QAction* const mnuFHelp;
    QAction* const mnuFVid;
    QString WKDPathTxt; // the working folder as written in the settings

private:
    void fillWelcomePage();
    void fillNamePage();
    void fillLocationPage();
    QLayout* buttonRow();
    void connectControls();
    void pageShown(int number);
    void leaveNamePage();
    void finish();
    QString chosenFolder();
    void refuseExisting(const QString& path);

    WizardPages* const pages;
};
