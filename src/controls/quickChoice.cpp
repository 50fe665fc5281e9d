#include "controls/quickChoice.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>

namespace {

class QuickChoice : public QObject {
public:
    QuickChoice(QRadioButton* chosen, QPushButton* pressed)
        : QObject(chosen)
        , option(chosen)
        , ok(pressed)
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!option->isEnabled())
            return false;
        if (event->type() == QEvent::MouseButtonPress && watched != option)
            option->click();
        else if (event->type() == QEvent::MouseButtonDblClick &&
                 static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            ok->click();
        else if (event->type() == QEvent::KeyPress &&
                 static_cast<QKeyEvent*>(event)->matches(QKeySequence::InsertParagraphSeparator))
            option->click(); // the dialog then presses OK
        return false;
    }

private:
    QRadioButton* option;
    QPushButton* ok;
};

} // namespace

void chooseQuickly(QRadioButton* option, QPushButton* ok, QWidget* explanation)
{
    auto* choice = new QuickChoice(option, ok);
    option->installEventFilter(choice);
    if (explanation)
        explanation->installEventFilter(choice);
}
