#include "options/swatchRow.h"

#include "controls/dialogParts.h"
#include "options/teacherOptions.h"
#include "platform/picture.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(72, 32);
constexpr QSize handSize(32, 32);
constexpr QPoint handPoint(16, 14);

QToolButton* swatchButton(const char* group, int number, const QString& meaning)
{
    auto* button = element(new QToolButton, group, number);
    const QString name = QLatin1StringView(swatches()[number].name);
    button->setProperty("role", u"swatch"_s);
    button->setIcon(QIcon(picturePath(u"swatch%1"_s.arg(number))));
    button->setIconSize(pictureSize);
    button->setText(name);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAccessibleName(meaning + u": "_s + name);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAttribute(Qt::WA_Hover);
    button->setCursor(QCursor(picture(u"handOpen"_s, handSize), handPoint.x(), handPoint.y()));
    return button;
}

void setLit(QWidget& button, bool lit)
{
    if (button.property("lit").toBool() == lit)
        return;
    button.setProperty("lit", lit);
    button.style()->polish(&button);
}

} // namespace

SwatchRow::SwatchRow(const char* group, const QString& meaning)
    : buttons(new QButtonGroup(this))
    , present(words(QString()))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    for (int number = 0; number < swatches().size(); ++number) {
        QToolButton* button = swatchButton(group, number, meaning);
        button->installEventFilter(this);
        buttons->addButton(button, number);
        row->addWidget(button);
        onToggle(button, [this, number](bool chosen) { // assistive technology toggles without a click
            if (!chosen)
                return;
            const QString value = QLatin1StringView(swatches()[number].value);
            showColour(value);
            picked(value);
        });
    }
    row->addSpacing(8);
    row->addWidget(present, 1);
}

void SwatchRow::showColour(const QString& value)
{
    const QString name = colourName(value);
    buttons->setExclusive(false); // a colour of none of them marks none
    for (QAbstractButton* button : buttons->buttons()) {
        const QSignalBlocker quiet(button); // showing a colour doesn't choose it
        button->setChecked(button->text() == name);
    }
    buttons->setExclusive(true);
    present->setText(u"Now: "_s + name);
}

/// The button under the mouse gets a line around it, and keeps it until the mouse is over another.
bool SwatchRow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::HoverMove || event->type() == QEvent::HoverEnter) {
        for (QAbstractButton* button : buttons->buttons())
            setLit(*button, button == watched);
    }
    return false;
}
