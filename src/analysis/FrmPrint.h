// "Print": what to print, with a small picture of each, and on which printer.
#pragma once

#include "controls/answerButtons.h"

#include <array>

class DropDown;
class QLabel;
class QRadioButton;

class FrmPrint : public AnswerDialog {
    Q_OBJECT
public:
    FrmPrint();
    /// Chooses the board, shows what would come out, and lists the printers.
    void load();

    QRadioButton* const Option1; // the board
    QRadioButton* const Option2; // the selected card
    QRadioButton* const Option3; // the chart
    QRadioButton* const Option4; // the table, not available
    QLabel* const lblScr;
    QLabel* const lblCard;
    QLabel* const lblgraph;
    QLabel* const ScrPrev;
    QLabel* const CardPrev;
    QLabel* const GrafPrev;
    DropDown* const Printercombo; // the printers, and after them "Save as PDF"

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Choice {
        QRadioButton* option;
        QLabel* words;
        QLabel* preview;
        const char* word; // of session.paper.printChoice
    };

    QLayout* choiceRow();
    QLayout* printerRow();
    void connectControls();
    void showPreviews();
    void markChosen();
    void loadPrinters();
    void confirm();

    QStringList offered; // the printers in the list
    const std::array<Choice, 3> choices;
};
