// Asks what to look for: up to three conditions, of which the window's height shows as many as are joined.
#pragma once

#include "platform/answerButtons.h"
#include "platform/answerHolder.h"

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

class findForm : public AnswerDialog {
    Q_OBJECT
public:
    findForm();
    void load() {}

    /// Empties the three conditions, offers the fields of the open database and shows the first row alone.
    void prepare();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row {
        QComboBox* fieldCombo;
        QComboBox* compBox;
        QLineEdit* valBox;
        QPushButton* pullDownBut;
    };

    void makeRow(int row);
    void makeJoin(int join);
    void layOut();
    void fillCompBox(int row);
    void fieldPicked(int row);
    void valueTyped(int row);
    void toggleAnswers(int row);
    void joinPicked(int join);
    void showRow(int row, bool visible);
    void takeHeight(int twips);
    int fieldOf(int row) const;

    std::array<Row, 3> rows{};
    std::array<QComboBox*, 2> andOr{};
    QCheckBox* const vennTick;
    QLabel* const Logo2;
    AnswerHolder* const answerHolder;
    int answersOfRow = -1;
};
