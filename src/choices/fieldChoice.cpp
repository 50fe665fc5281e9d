#include "choices/fieldChoice.h"

#include "controls/dialogParts.h"
#include "controls/dropDown.h"
#include "core/session.h"

namespace {

constexpr int widestChoice = 420; // pixels; a long field name must not make a dialog wider than the screen

} // namespace

QComboBox* fieldChoice(const char* name)
{
    auto* choice = named(new DropDown, name);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    choice->setMaximumWidth(widestChoice);
    QObject::connect(choice, &QComboBox::currentIndexChanged, choice, [](int index) {
        if (index >= 0)
            session.chosenField = index + 1;
    });
    return choice;
}

void offerFields(QComboBox& choice)
{
    choice.clear();
    for (int f = 1; f <= session.numFields; ++f)
        choice.addItem(session.fieldName[f]);
    choice.setCurrentIndex(-1); // undo the automatic choice of the first entry
}

void fillFieldChoice(QComboBox& choice)
{
    offerFields(choice);
    choice.setCurrentIndex(0);
}
