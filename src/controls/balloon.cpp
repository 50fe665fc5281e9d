#include "controls/balloon.h"

#include <QCursor>
#include <QEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace {

class Hinting : public QObject {
public:
    Hinting(QWidget& widget, const QString& text)
        : QObject(&widget)
        , owner(widget)
        , hint(text)
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Enter || event->type() == QEvent::HoverMove)
            showHint(owner, hint);
        return false;
    }

private:
    QWidget& owner;
    QString hint;
};

} // namespace

void showHint(QWidget& owner, const QString& text)
{
    if (hintInView() != text)
        QToolTip::showText(QCursor::pos(), text, &owner);
}

void endHint() { QToolTip::hideText(); }

QString plainHint(const QString& text)
{
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

QString hintInView() { return QToolTip::isVisible() ? QToolTip::text() : QString(); }

void giveHint(QWidget& widget, const QString& text)
{
    widget.setAttribute(Qt::WA_Hover);
    new Hinting(widget, text);
}
