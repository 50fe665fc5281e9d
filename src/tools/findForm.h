// Asks what to look for: up to three conditions. The window is high enough for those that are joined.
#pragma once

#include "controls/answerButtons.h"
#include "controls/answerHolder.h"

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

    /// Clears the three conditions, offers the fields of the open database and shows the first row only.
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

    QComboBox* dropDown(const char* group, int number, const QString& meaning);
    void makeRow(int row);
    void makeJoin(int join);
    void layOut();
    void placeAnswers();
    void fillCompBox(int row);
    void fieldPicked(int row);
    void valueTyped(int row);
    void toggleAnswers(int row);
    void joinPicked(int join);
    void showRow(int row, bool visible);
    void takeHeight(int twips);
    void showWhatFits();
    int fieldOf(int row) const;

    std::array<Row, 3> rows{};
    std::array<bool, 3> rowShown{true, false, false}; // whether the window is high enough for it
    std::array<QComboBox*, 2> andOr{};
    QCheckBox* const vennTick;
    QLabel* const Logo2;
    QPushButton* const BtnVid;
    AnswerHolder* const answerHolder;
};
