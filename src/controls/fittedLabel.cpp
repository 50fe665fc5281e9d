#include "controls/fittedLabel.h"

#include "controls/balloon.h"
#include "platform/textLines.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

FittedLabel::FittedLabel()
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QString FittedLabel::textInView() const
{
    const QString whole = text().replace(u'\n', QChar(QChar::LineSeparator));
    return textInLines(whole, font(), contentsRect().width(),
                       std::max(1, contentsRect().height() / lineHeight()));
}

bool FittedLabel::event(QEvent* event)
{
    const bool handled = QLabel::event(event);
    const bool asked = event->type() == QEvent::Enter || event->type() == QEvent::MouseButtonPress;
    if (asked && textInView().contains(QChar(0x2026)))
        showHint(*this, plainHint(text()));
    return handled;
}

void FittedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    const QStringList lines = textInView().split(u'\n');
    QRect place = contentsRect();
    place.setTop(place.top() + (place.height() - int(lines.size()) * lineHeight()) / 2);
    place.setHeight(lineHeight());
    for (const QString& line : lines) {
        style()->drawItemText(&painter, place, int(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextDontClip,
                              palette(), isEnabled(), line, foregroundRole());
        place.translate(0, lineHeight());
    }
}

QSize FittedLabel::minimumSizeHint() const { return {fontMetrics().averageCharWidth(), lineHeight()}; }

/// Less than the font's line spacing, which leaves room for marks above and below letters.
int FittedLabel::lineHeight() const { return fontMetrics().height() * 4 / 5; }
