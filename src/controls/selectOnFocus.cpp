#include "controls/selectOnFocus.h"

#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>

namespace {

class Selecting : public QObject {
public:
    explicit Selecting(QLineEdit* watched)
        : QObject(watched)
        , box(watched)
    {
        box->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn)
            focusCame(static_cast<QFocusEvent*>(event)->reason());
        else if (event->type() == QEvent::MouseButtonRelease && clicked)
            focusCame(Qt::OtherFocusReason);
        return false;
    }

private:
    void focusCame(Qt::FocusReason reason)
    {
        clicked = reason == Qt::MouseFocusReason; // the mouse press has yet to place the caret
        if (!clicked && reason != Qt::PopupFocusReason)
            box->selectAll();
    }

    QLineEdit* box;
    bool clicked = false;
};

} // namespace

void selectOnFocus(QLineEdit* box) { new Selecting(box); }
