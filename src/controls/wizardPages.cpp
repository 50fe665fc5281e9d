#include "controls/wizardPages.h"

#include "platform/values.h"

#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr auto tag = "Tag";

/// For a radio button the chosen one of its group, since focusing another would choose it.
QWidget* focusIn(const WizardPage& page)
{
    if (!page.first)
        return page.next;
    if (!qobject_cast<QRadioButton*>(page.first))
        return page.first;
    const auto group =
        page.first->parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
    const auto chosen =
        std::find_if(group.begin(), group.end(), [](QRadioButton* option) { return option->isChecked(); });
    return chosen == group.end() ? page.first : *chosen;
}

} // namespace

WizardPages::WizardPages(QWidget& wizard)
    : form(wizard)
{
}

void WizardPages::setPages(const std::vector<WizardPage>& table)
{
    pages = table;
    for (const WizardPage& page : pages)
        addWidget(page.page);
}

int WizardPages::number() const { return int(leadingNumber(form.property(tag).toString())); }

void WizardPages::goTo(int number)
{
    const WizardPage& now = pages.at(number);
    form.setProperty(tag, QString::number(number));
    setCurrentWidget(now.page);
    now.next->setEnabled(true); // before others are disabled, so that the focus has a place to go
    for (const WizardPage& page : pages) {
        for (QPushButton* button : {page.next, page.back})
            if (button)
                button->setEnabled(button == now.next || button == now.back);
    }
    if (shown)
        shown(number);
    now.next->setDefault(true);
    focusIn(now)->setFocus();
}

void WizardPages::goOn() { turn(1); }

void WizardPages::goBack() { turn(-1); }

void WizardPages::turn(int step)
{
    const int to = number() + step;
    if (to >= 0 && to < int(pages.size()))
        goTo(landing ? landing(to, step) : to);
}
