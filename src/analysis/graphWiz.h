// "Make Graph": what to plot, what kind of graph, whether to group, and the titles, on four pages.
#pragma once

#include "controls/answerButtons.h"

#include <array>

class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QTabWidget;
class WizardPages;

class graphWiz : public AnswerDialog {
    Q_OBJECT
public:
    graphWiz();
    /// Chooses the kind of the last graph.
    void load();

    /// Offers the fields of the open database and begins anew at the first page, with the titles unwritten.
    void prepare();

    std::array<QWidget*, 4> Frame;
    QTabWidget* const graphTab; // one tab, which brings the solid bars into view
    QComboBox* const fieldCombo;
    QComboBox* const field1combo; // X of a scattergram; not in view, like all that is only a scattergram's
    QComboBox* const field2combo; // Y
    std::array<QRadioButton*, 6> graphOpt;
    std::array<QLabel*, 6> graphPic;
    std::array<QRadioButton*, 2> groupCount; // "Count in Groups", "Show All Data"
    QLineEdit* const graphTitle;
    QLineEdit* const graphXTitle;
    QLineEdit* const graphYTitle;
    QPushButton* const prevBut;
    QPushButton* const nextBut;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillFieldPage();
    void fillKindPage();
    void fillGroupPage();
    void fillTitlePage();
    QLayout* buttonRow();
    void connectControls();
    void connectPages();
    void showKindsOfTab(int tab);
    void markChosenPicture();

    WizardPages* const pages;
};
