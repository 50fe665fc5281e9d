#include "paint/paintButton.h"

#include "platform/picture.h"

#include <QPainter>

PaintButton::PaintButton(const QString& name, const QString& picture, QRect place, QWidget* parent)
    : QRadioButton(parent)
    , drawing(picture)
{
    setAccessibleName(name);
    setGeometry(place);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void PaintButton::setColour(QRgb colour)
{
    ground = colour;
    update();
}

/// What is chosen has a frame that stands out on every colour: ink, white, ink. The focus thickens it.
void PaintButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(ground));
    if (!drawing.isEmpty())
        painter.drawPixmap(0, 0, picture(drawing, size()));
    const auto frame = [&](int from, int width, const QColor& colour) {
        for (int inset = from; inset < from + width; ++inset) {
            painter.setPen(colour);
            painter.drawRect(rect().adjusted(inset, inset, -inset - 1, -inset - 1));
        }
    };
    if (hasFocus())
        frame(0, 3, palette().color(QPalette::Highlight));
    else if (isChecked())
        frame(0, 2, palette().color(QPalette::WindowText));
    if (isChecked() || hasFocus())
        frame(hasFocus() ? 3 : 2, 1, Qt::white);
    if (isChecked())
        frame(hasFocus() ? 4 : 3, 1, palette().color(QPalette::WindowText));
}

bool PaintButton::hitButton(const QPoint& at) const { return rect().contains(at); }
