// Controls of the teacher's options screen that are never shown: a saving folder, the start-up dialog, tips,
// updates and the import of lists. Their values are read and written with the others.
#pragma once

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QPushButton;

class HiddenParts : public QWidget {
    Q_OBJECT
public:
    HiddenParts();

    QCheckBox* const ChkStartup;
    QCheckBox* const ChkTips;
    QLineEdit* const txtSaveDir;
    QPushButton* const cmdSaveDir;
    QPushButton* const BtnChkUpdate;
    QPushButton* const BtnImport;
    QPushButton* const BtnHlp;
    QWidget* const Frame1; // the import panel

private:
    void chooseSavingFolder();
};
