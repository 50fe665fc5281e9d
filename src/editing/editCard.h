// The card editor: the values of a card, its picture and, on a second page, its sound.
#pragma once

#include "core/session.h"
#include "editing/pictureBox.h"
#include "editing/soundCover.h"
#include "platform/answerButtons.h"
#include "platform/answerHolder.h"

class FittedLabel;
class QLabel;
class QLineEdit;
class QTabBar;
class pucTextTip;

class editCard : public AnswerDialog {
    Q_OBJECT
public:
    editCard();
    /// Asks the settings whether the sound page is offered.
    void load();

    /// Shows the card that fillEditor() put into the session.
    void showCard();
    /// Shows the rows of the fields that there are; a field with a list can't be typed into.
    void layoutFieldBoxes();

    pucTextTip* const Tip1;
    QLabel* const Monitor;
    PictureBox* const Picture1;
    pucTextTip* const Tip2;
    QTabBar* const FTab1;
    Table<FittedLabel*, lastField> fieldName; // elements 1..12 of each
    Table<QLineEdit*, lastField> DataBox;
    Table<QPushButton*, lastField> pullDownBut;
    SoundCover* const Cover;
    AnswerHolder* const Answers;
    QTimer* const Timer2; // 1 ms, the lock test
    QString txtDBLock;    // what it read

protected:
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* pictureRow();
    QWidget* fieldRows();
    void addFieldRow(class QGridLayout& grid, int f);
    void connectControls();
    void filterValue(int f);
    void toggleAnswers(int f);
    void closeAnswers();
    void testLock();
    void leave();

    QWidget* fields = nullptr;
    int answersOf = 0; // the field that the list belongs to, 0 for none
};

/// Shows the card in the editor and waits until that is closed; `session.dialogResult` is "OK", "Cancel", or
/// empty after the window's own closing. A card outside the tables, 0..100, ends in the error box.
void openCardEditor(int card);
