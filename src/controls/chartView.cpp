#include "controls/chartView.h"

#include "controls/balloon.h"
#include "platform/errors.h"

#include <QFocusEvent>
#include <QFontInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int focusWidth = 4;

QString kindName(const Chart& chart)
{
    switch (chart.chartType) {
    case ChartType::pie:
        return u"Pie chart"_s;
    case ChartType::line:
        return u"Line chart"_s;
    case ChartType::scatter:
        return u"Scattergram"_s;
    default:
        return u"Bar chart"_s;
    }
}

} // namespace

ChartView::ChartView(QWidget* parent)
    : QWidget(parent)
    , voice(*this, laidOut, chosen)
{
    fillColours.fill(Qt::lightGray);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ChartView::setChart(const Chart& chart)
{
    if (chart == shown)
        return;
    shown = chart;
    chosen = -1;
    layOutAnew();
    voice.forgetMarks();
    const QString title = chart.titleText.simplified();
    setAccessibleName(title.isEmpty() ? kindName(chart) : title);
    setAccessibleDescription(u"%1 of %2 values"_s.arg(kindName(chart)).arg(laidOut.marks.size()));
    voice.tellMarks();
}

QImage ChartView::picture(double ratio)
{
    ensurePolished();
    return chartPicture(shown, size(), ratio, look());
}

std::function<void(QPainter&)> ChartView::painting()
{
    ensurePolished();
    return [layout = laidOut, how = look()](QPainter& painter) { paintChart(painter, layout, how); };
}

void ChartView::chooseMark(int mark)
{
    chosen = std::clamp(mark, -1, int(laidOut.marks.size()) - 1);
    update();
    if (chosen < 0)
        return;
    const ChartMark& choice = laidOut.marks[std::size_t(chosen)];
    QToolTip::showText(mapToGlobal(choice.place().center().toPoint()), plainHint(choice.words), this);
    voice.tellFocus(chosen);
}

void ChartView::layOutAnew()
{
    ensurePolished();
    laidOut = layOutChart(shown, QSizeF(size()), look().font);
    update();
}

ChartLook ChartView::look() const
{
    QFont labels = font();
    labels.setPixelSize(std::max(1, QFontInfo(font()).pixelSize()));
    return {labels, ink, paper, grid, curve, fillColours};
}

QString ChartView::fillNames() const
{
    QStringList names;
    for (const QColor& colour : fillColours)
        names << colour.name();
    return names.join(u' ');
}

void ChartView::setFillNames(const QString& names)
{
    const QStringList list = names.split(u' ', Qt::SkipEmptyParts);
    for (std::size_t i = 0; i < fillColours.size() && i < std::size_t(list.size()); ++i)
        fillColours[i] = QColor(list[qsizetype(i)]);
    update();
}

// ---- painting ----

void ChartView::paintEvent(QPaintEvent*)
{
    guarded([this] {
        QPainter painter(this);
        paintChart(painter, laidOut, look());
        paintChosen(painter);
    });
}

void ChartView::paintChosen(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(focusColour, focusWidth));
    if (hasFocus() && reachedByKey)
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 8, 8);
    painter.setPen(QPen(focusColour, 2 * focusWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (chosen >= 0)
        painter.drawPath(laidOut.marks[std::size_t(chosen)].outline);
}

void ChartView::resizeEvent(QResizeEvent*)
{
    guarded([this] { layOutAnew(); });
}

void ChartView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        guarded([this] { layOutAnew(); });
}

// ---- mouse and finger ----

void ChartView::mousePressEvent(QMouseEvent* event)
{
    guarded([this, event] {
        if (pressed)
            pressed();
        chosen = laidOut.markAt(event->position());
        update();
        tellMarkAt(event->position());
    });
}

void ChartView::mouseMoveEvent(QMouseEvent* event) { tellMarkAt(event->position()); }

/// Again, since any press and release takes the balloon away: a finger that taps has no other moment.
void ChartView::mouseReleaseEvent(QMouseEvent* event) { tellMarkAt(event->position()); }

void ChartView::leaveEvent(QEvent*) { endHint(); }

void ChartView::tellMarkAt(QPointF point)
{
    const int mark = laidOut.markAt(point);
    if (mark < 0)
        endHint();
    else
        showHint(*this, plainHint(laidOut.marks[std::size_t(mark)].words));
}

// ---- keys ----

void ChartView::keyPressEvent(QKeyEvent* event)
{
    const int last = int(laidOut.marks.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        chooseMark(std::min(chosen + 1, last));
        break;
    case Qt::Key_Left:
    case Qt::Key_Up:
        chooseMark(std::max(chosen - 1, 0));
        break;
    case Qt::Key_Home:
        chooseMark(0);
        break;
    case Qt::Key_End:
        chooseMark(last);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ChartView::focusInEvent(QFocusEvent* event)
{
    reachedByKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void ChartView::focusOutEvent(QFocusEvent*)
{
    chosen = -1;
    update();
}
