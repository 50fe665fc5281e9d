// The card editor: the values of a card, its picture and, on a second page, its sound.
#pragma once

#include "controls/answerButtons.h"
#include "controls/answerHolder.h"
#include "core/session.h"
#include "editing/pictureBox.h"
#include "editing/soundCover.h"

class FittedLabel;
class QLabel;
class QLineEdit;
class QTabBar;
class pucTextTip;

class editCard : public AnswerDialog {
    Q_OBJECT
public:
    editCard();
    /// Reads from the settings whether the sound page is offered.
    void load();

    /// Shows the card that fillEditor() put into the session.
    void showCard();
    /// Shows a row for each field; a field with a list is read-only.
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
    QTimer* const Timer2; // 1 ms, starts the test for the lock
    QString txtDBLock;    // the setting that it read

protected:
    void hideEvent(QHideEvent* event) override;
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
    void testLock();
    void leave();

    QWidget* fields = nullptr;
};

/// Shows the card in the editor and waits until that is closed; then `session.dialogResult` is "OK",
/// "Cancel", or empty after the window's close button. A card outside 0..100 shows the error box.
void openCardEditor(int card);
