#include "tools/fieldChoice.h"

#include "core/session.h"
#include "platform/dialogParts.h"

#include <QComboBox>
#include <QStyledItemDelegate>

namespace {

constexpr int widestChoice = 420; // pixels; a dialog must not grow off the screen with a field's name

} // namespace

QComboBox* fieldChoice(const char* name)
{
    auto* choice = named(new QComboBox, name);
    choice->setItemDelegate(
        new QStyledItemDelegate(choice)); // lets the list have rows as large as the sheet says
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    choice->setMaximumWidth(widestChoice);
    QObject::connect(choice, &QComboBox::currentIndexChanged, choice, [](int index) {
        if (index >= 0)
            session.chosenField = index + 1;
    });
    return choice;
}

void fillFieldChoice(QComboBox& choice)
{
    choice.clear();
    for (int f = 1; f <= session.numFields; ++f)
        choice.addItem(session.fieldName[f]);
    choice.setCurrentIndex(0);
}
