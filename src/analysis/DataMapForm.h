// "DataMap": a wizard that asks what a map coloured by values would show. Nothing opens it: drawing such a
// map is not available yet.
#pragma once

#include "controls/answerButtons.h"

#include <array>

class QComboBox;
class QLabel;
class QLineEdit;
class QVBoxLayout;
class WizardPages;

class DataMapForm : public AnswerDialog {
    Q_OBJECT
public:
    DataMapForm();
    void load();

    /// Offers the fields of the open database and begins anew at the first page.
    void prepare();

    std::array<QWidget*, 3> Frame;
    QComboBox* const fieldCombo;
    QLabel* const mapMaxCol; // the colour of the largest value
    QLineEdit* const graphTitle;
    QPushButton* const prevBut;
    QPushButton* const nextBut;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QVBoxLayout* page(int number, const QString& heading);

    WizardPages* const pages;
};
