// The forms: one instance of each, made at first use and reachable from everywhere.
//
// A form is a QWidget with a public `void load()`, which runs once after the constructor. Hiding keeps the
// state of its controls; unloading hides it, forgets it and deletes it from the event loop.
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

class QDialog;

namespace formRegistry {

/// Adds the form's slot to the list of loaded forms, so that all can be unloaded.
QPointer<QWidget>& remember(QPointer<QWidget>& slot);
void forget(QPointer<QWidget>& slot);

template <class F>
QPointer<QWidget>& slotOf()
{
    static QPointer<QWidget> slot;
    return slot;
}

} // namespace formRegistry

template <class F>
bool isLoaded()
{
    return !formRegistry::slotOf<F>().isNull();
}

/// The one instance of the form, made and loaded at the first call.
template <class F>
F& form()
{
    auto& slot = formRegistry::slotOf<F>();
    if (slot.isNull()) {
        auto* made = new F;
        slot = made;
        formRegistry::remember(slot);
        made->load();
        return *made;
    }
    return *static_cast<F*>(slot.data());
}

/// Hides and forgets the form; the next form<F>() makes a new one. Does nothing when it isn't loaded.
template <class F>
void unload()
{
    formRegistry::forget(formRegistry::slotOf<F>());
}

/// Unloads every form, the newest first.
void unloadAllForms();

/// Shows the dialog modally and returns when it is hidden. Tests replace `modalLoop` to answer it.
void showModal(QDialog& dialog);
extern std::function<void(QDialog&)> modalLoop;

/// Shows the dialog modally and returns its answer, which is also in `session.dialogResult`: "OK", "Cancel",
/// another word, or an empty text when it was closed without an answer.
QString ask(QDialog& dialog);
/// True for the answer "OK".
bool saysOk(QDialog& dialog);
