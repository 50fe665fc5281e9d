#include "controls/dropDown.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QStyleOption>
#include <QStylePainter>
#include <QStyledItemDelegate>

namespace {

int heightOfEntries(const QAbstractItemView& list, int count)
{
    int height = 0;
    for (int entry = 0; entry < count; ++entry)
        height += list.sizeHintForRow(entry);
    return height;
}

/// Enlarges the open list until all entries are visible, and keeps it on the screen.
void growTo(int height, QAbstractItemView& list)
{
    QWidget& popup = *list.window();
    popup.layout()->activate(); // the arrows that scroll may have gone
    const QRect screen = popup.screen()->availableGeometry();
    const int missing = height - list.viewport()->height();
    QRect place = popup.geometry();
    place.setHeight(std::min(place.height() + missing, screen.height()));
    place.moveTop(std::max(screen.top(), std::min(place.top(), screen.bottom() + 1 - place.height())));
    popup.setGeometry(place);
}

} // namespace

DropDown::DropDown(QWidget* parent)
    : QComboBox(parent)
{
    setItemDelegate(
        new QStyledItemDelegate(this)); // the default delegate ignores the style sheet's row height
}

void DropDown::setMeaning(const QString& meaning)
{
    setAccessibleName(meaning);
    setAccessibleDescription(meaning);
}

void DropDown::showPopup()
{
    QComboBox::showPopup();
    // The list was measured without its frame. Growing may remove the scroll arrows and free their room.
    const int height = heightOfEntries(*view(), count());
    for (int pass = 0; pass < 3 && view()->isVisible(); ++pass)
        growTo(height, *view());
    view()->scrollTo(view()->currentIndex());
}

void DropDown::paintEvent(QPaintEvent* event)
{
    const bool blank = currentIndex() >= 0 && currentText().trimmed().isEmpty();
    if (!blank) {
        QComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = placeholderText();
    option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void DropDown::keyPressEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat() && event->matches(QKeySequence::InsertParagraphSeparator))
        return;
    QComboBox::keyPressEvent(event);
}
