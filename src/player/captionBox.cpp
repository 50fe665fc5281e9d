#include "player/captionBox.h"

#include "controls/dialogParts.h"
#include "controls/fittedLabel.h"

#include <QStyle>

namespace {

constexpr int heightOfTwoLines = 84;

} // namespace

CaptionBox::CaptionBox()
{
    setFixedHeight(heightOfTwoLines);
    for (int i = 0; i < 2; ++i) {
        auto* side = named(new FittedLabel, "caption");
        side->setFocusPolicy(Qt::StrongFocus);
        addWidget(side);
    }
}

FittedLabel& CaptionBox::label() const { return *static_cast<FittedLabel*>(currentWidget()); }

QString CaptionBox::text() const { return label().text(); }

QString CaptionBox::textInView() const { return label().textInView(); }

void CaptionBox::takeFocus() { label().setFocus(); }

void CaptionBox::say(const QString& text, const QString& state)
{
    if (text == this->text() && state == label().accessibleDescription())
        return;
    auto* next = static_cast<FittedLabel*>(widget(1 - currentIndex()));
    next->setText(text);
    next->setAccessibleDescription(state);
    setCurrentWidget(next); // takes the focus along
    fit();
}

void CaptionBox::fit()
{
    for (const char* letters : {"large", "middle", "small"}) {
        label().setProperty("letters", QLatin1String(letters));
        style()->polish(&label());
        if (!textInView().contains(QChar(0x2026)))
            return;
    }
}

void CaptionBox::resizeEvent(QResizeEvent* event)
{
    QStackedWidget::resizeEvent(event);
    fit();
}
