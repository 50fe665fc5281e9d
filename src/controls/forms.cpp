#include "controls/forms.h"

#include "core/session.h"
#include "platform/owningWindow.h"

#include <QDialog>
#include <QWindow>

#include <vector>

using namespace Qt::StringLiterals;

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

void showModal(QDialog& dialog)
{
    if (const QWidget* owner = owningWindow(&dialog)) {
        dialog.winId(); // makes its window
        dialog.windowHandle()->setTransientParent(owner->windowHandle());
    }
    modalLoop(dialog);
}

QString ask(QDialog& dialog)
{
    session.dialogResult.clear();
    showModal(dialog);
    return session.dialogResult;
}

bool saysOk(QDialog& dialog) { return ask(dialog) == "OK"_L1; }
