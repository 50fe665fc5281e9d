// "Reports": a sentence with fields that is filled in for every card, and the jotter, the database's
// notebook.
#pragma once

#include "controls/answerButtons.h"

class QListWidget;
class QPlainTextEdit;
class QTabWidget;

class reportForm : public AnswerDialog {
    Q_OBJECT
public:
    reportForm();
    void load();

    /// Offers the names of the open database's fields.
    void offerFieldNames();
    /// Locks the text of the jotter against changes, or unlocks it.
    void lockNotes(bool locked);

    QTabWidget* const repTab;

    QPlainTextEdit* const design;
    QListWidget* const fieldCombo; // a list in view: a double click on a name inserts it
    QPushButton* const insertBut;

    QPlainTextEdit* const RepBox;
    QPushButton* const PrintCommand;
    QPushButton* const copyBut;

    QPlainTextEdit* const RTF1; // the jotter
    QPushButton* const BtnSave;
    QPushButton* const BtnPrt;
    QPushButton* const BtnCopy1;

    QString TxtDate; // of the day on which the form was loaded

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* designPage();
    QWidget* reportPage();
    QWidget* jotterPage();
    void connectControls();
    void enterTab(int tab);
    void insertField();
    void showReport();
    void printReport();
    QString jotterText() const;
    void saveJotter();

    QString loadedNotes; // as they stand in their file, in whatever line ends
};
