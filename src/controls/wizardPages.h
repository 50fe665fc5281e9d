// The pages of a wizard. One is visible; its number is kept in the wizard's `Tag`.
//
// The form makes its pages and buttons, passes a table of them, and connects each button to goOn() or
// goBack(), if necessary after a check of the page:
//
//     pages->setPages({{Frame[0], fieldCombo, nextBut, nullptr},
//                      {Frame[1], graphOpt[0], nextBut, prevBut},
//                      {Frame[2], graphTitle, answers->ok, prevBut}});
//     onClick(nextBut, [this] { pages->goOn(); });
//     onClick(prevBut, [this] { pages->goBack(); });
//
// and calls goTo(0) before the wizard is opened.
#pragma once

#include <QStackedWidget>

#include <functional>
#include <vector>

class QPushButton;

struct WizardPage {
    QWidget* page;
    QWidget*
        first; // gets the focus when the page is shown (of radio buttons the chosen one); null for `next`
    QPushButton* next; // the default button; on the last page the wizard's OK
    QPushButton* back; // null on a page without a way back
};

class WizardPages : public QStackedWidget {
    Q_OBJECT
public:
    /// `form` is the wizard; its property "Tag" is the number of the visible page as text, starting with "0".
    explicit WizardPages(QWidget& form);

    void setPages(const std::vector<WizardPage>& table);

    /// The visible page, from 0.
    int number() const;

    /// Shows the page, enables its buttons and disables the others of the table, focuses its first control
    /// and makes its `next` the default button.
    void goTo(int number);
    /// One page forward or back; does nothing on the last or the first page.
    void goOn();
    void goBack();

    /// Returns the page to show in place of page `number`; set it for a wizard that skips pages. `step` is 1
    /// or -1.
    std::function<int(int number, int step)> landing;
    /// Called when a page is shown and its buttons are up to date, before the focus moves.
    std::function<void(int number)> shown;

private:
    void turn(int step);

    QWidget& form;
    std::vector<WizardPage> pages;
};
