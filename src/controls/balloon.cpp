#include "controls/balloon.h"

#include <QCursor>
#include <QEvent>
#include <QToolTip>
#include <QWidget>

using namespace Qt::StringLiterals;

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
    // Not Qt::convertFromPlainText(), whose paragraphs have an empty line above and below.
    return text.isEmpty() ? QString()
                          : u"<span>"_s + text.toHtmlEscaped().replace(u'\n', "<br>"_L1) + u"</span>"_s;
}

QString hintInView() { return QToolTip::isVisible() ? QToolTip::text() : QString(); }

void giveHint(QWidget& widget, const QString& text)
{
    widget.setAttribute(Qt::WA_Hover);
    new Hinting(widget, text);
}
