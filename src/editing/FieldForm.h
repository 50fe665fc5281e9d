// "Field Details": the name of one field, its type, and its list of ready answers.
#pragma once

#include "controls/answerButtons.h"
#include "editing/fieldDefinition.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QScrollArea;

class FieldForm : public AnswerDialog {
    Q_OBJECT
public:
    FieldForm();
    void load() {}

    void fill(const FieldDefinition& definition);
    FieldDefinition definition() const;

    QLineEdit* const fieldNameBox;
    QPushButton* const BtnClear;
    QComboBox* const fieldType;
    QCheckBox* const UseList;
    QLabel* const listLabel;
    QWidget* const AnswerHolder;
    QScrollArea* const Scroller1;
    Table<QLineEdit*, lastAnswer> possAnswer; // elements 1..lastAnswer

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* nameAndType();
    QLayout* answerList();
    void connectControls();
    void offerList(bool offered);
    QString chosenType() const;
    bool beginsLine(const QObject* watched, const QEvent& event);
    bool refuses(QEvent& event) const;
};

/// Shows field f of the session in the dialog and, after OK, changes its definition. True after OK.
bool editField(int f);
