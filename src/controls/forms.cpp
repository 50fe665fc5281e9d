#include "controls/forms.h"

#include "core/session.h"
#include "platform/owningWindow.h"

#include <QDialog>
#include <QScreen>
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

namespace {

constexpr int titleBar = 28; // pixels above a dialog that stay on the screen

/// Puts the dialog in the middle of its owner. Left to itself it would open elsewhere the second time, when
/// its frame is known.
void centre(QDialog& dialog, const QWidget& owner)
{
    if (!dialog.testAttribute(Qt::WA_Resized))
        dialog.adjustSize();
    const QRect room = owner.screen()->availableGeometry();
    QRect place({}, dialog.size());
    place.moveCenter(owner.geometry().center());
    place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() + 1 - place.width())));
    place.moveTop(std::max(room.top() + titleBar, std::min(place.top(), room.bottom() + 1 - place.height())));
    dialog.setGeometry(place); // not move(), which counts the frame only once it is known
}

} // namespace

void showModal(QDialog& dialog)
{
    const QPointer<QDialog> shown(&dialog);
    const bool placesItself = dialog.testAttribute(Qt::WA_Moved);
    if (const QWidget* owner = owningWindow(&dialog)) {
        dialog.winId(); // makes its window
        dialog.windowHandle()->setTransientParent(owner->windowHandle());
        if (!placesItself)
            centre(dialog, *owner);
    }
    modalLoop(dialog);
    if (shown)
        shown->setAttribute(Qt::WA_Moved, placesItself);
}

QString ask(QDialog& dialog)
{
    session.dialogResult.clear();
    showModal(dialog);
    return session.dialogResult;
}

bool saysOk(QDialog& dialog) { return ask(dialog) == "OK"_L1; }
