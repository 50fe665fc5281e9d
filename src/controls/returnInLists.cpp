#include "controls/returnInLists.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace {

/// A list closes as soon as it is asked whether it wants the key; the press itself comes afterwards.
class ReturnInLists : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool listOpen = QApplication::activePopupWidget() != nullptr;
        if (event->type() == QEvent::ShortcutOverride) {
            // The question goes on to the widgets behind the list, which has closed by then.
            askedInList = askedInList || (listOpen && (key == Qt::Key_Return || key == Qt::Key_Enter));
            return false;
        }
        return std::exchange(askedInList, false) && !listOpen;
    }

private:
    bool askedInList = false;
};

} // namespace

void keepReturnInLists() { qApp->installEventFilter(new ReturnInLists(qApp)); }
