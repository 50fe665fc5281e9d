#include "platform/forms.h"

#include <QDialog>

#include <vector>

namespace {

std::vector<QPointer<QWidget>*> loaded;

} // namespace

QPointer<QWidget>& formRegistry::remember(QPointer<QWidget>& slot)
{
    std::erase(loaded, &slot);
    loaded.push_back(&slot);
    return slot;
}

void formRegistry::forget(QPointer<QWidget>& slot)
{
    std::erase(loaded, &slot);
    const QPointer<QWidget> leaving = slot;
    slot.clear();
    if (leaving) {
        leaving->hide();
        leaving->deleteLater();
    }
}

void unloadAllForms()
{
    while (!loaded.empty())
        formRegistry::forget(*loaded.back());
}

std::function<void(QDialog&)> modalLoop = [](QDialog& dialog) { dialog.exec(); };

void showModal(QDialog& dialog) { modalLoop(dialog); }
