// "Design Cards": the fields of a card, the size of the cards, and whether the database is read-only.
#pragma once

#include "controls/answerButtons.h"
#include "core/session.h"

class FittedLabel;
class QCheckBox;
class QGridLayout;
class QLabel;
class QRadioButton;

class DesignForm : public AnswerDialog {
    Q_OBJECT
public:
    DesignForm();
    /// Reads from the settings whether the read-only tick may be changed.
    void load();

    /// Shows the session's fields and card size.
    void layoutDesignFields();

    QLabel* const numFieldsBox;
    QPushButton* const spinUp;
    QPushButton* const spinDown;
    Table<FittedLabel*, lastField> fieldName; // elements 1..12 of each
    Table<QLabel*, lastField> DataBox;
    Table<QPushButton*, lastField> pullDownBut;
    Table<QPushButton*, lastField> EditFieldBut;
    Table<QRadioButton*, 2> cardSizeRadio;
    QCheckBox* const ChkRD;
    QLabel* const LblRO;
    QPushButton* const mapBut;

private:
    QWidget* fieldRows();
    void addFieldRow(QGridLayout& grid, int f);
    QWidget* fieldCount();
    QWidget* cardSizes();
    void connectControls();
    void showField(int f);
    void confirm();

    Table<QLabel*, lastField> number;
};
