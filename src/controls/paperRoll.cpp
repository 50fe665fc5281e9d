#include "controls/paperRoll.h"

#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace {

constexpr int rollerHeight = 26;
constexpr int rollerBeyondSheet = 10;
constexpr int tooth = 12; // width of a tooth of the torn edge; half as high
constexpr double outline = 2;

/// Upright edges, and a zigzag of whole teeth below.
QPainterPath sheet(const QRectF& place)
{
    const int teeth = std::max(1, int(place.width() / tooth));
    const double width = place.width() / teeth;
    QPainterPath path(place.topLeft());
    path.lineTo(place.left(), place.bottom() - tooth / 2.0);
    for (int i = 0; i < teeth; ++i) {
        path.lineTo(place.left() + (i + 0.5) * width, place.bottom());
        path.lineTo(place.left() + (i + 1) * width, place.bottom() - tooth / 2.0);
    }
    path.lineTo(place.topRight());
    return path;
}

} // namespace

PaperRoll::PaperRoll(QWidget* content)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(rollerBeyondSheet + 4, rollerHeight + 2, rollerBeyondSheet + 4, tooth);
    column->addWidget(content);
}

void PaperRoll::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, outline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QRectF whole = QRectF(rect()).adjusted(outline / 2, outline / 2, -outline / 2, -outline / 2);
    painter.setBrush(paper);
    painter.drawPath(sheet(whole.adjusted(rollerBeyondSheet, rollerHeight / 2.0, -rollerBeyondSheet, 0)));
    painter.setBrush(roller);
    const double round = rollerHeight / 2.0;
    painter.drawRoundedRect(QRectF(whole.topLeft(), QSizeF(whole.width(), rollerHeight)), round, round);
    painter.drawEllipse(QPointF(whole.right() - round, whole.top() + round), 3, 3);
    painter.drawEllipse(QPointF(whole.left() + round, whole.top() + round), 3, 3);
}
