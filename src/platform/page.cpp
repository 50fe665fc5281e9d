#include "platform/page.h"

#include "platform/errors.h"
#include "platform/fonts.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QLocale>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsPerPoint = 20;
constexpr double lineWidth = 15;  // twips: a pixel of a screen of 96 dots to the inch
constexpr int dotsPerInch = 1200; // of a PDF's coordinates
constexpr double unitSizes[] = {1, twipsPerPoint};

} // namespace

Page::Page(QPainter& paper, QSizeF sheet)
    : painter(paper)
    , size(sheet * twipsPerPoint)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(painter.device()->width() / size.width(), painter.device()->height() / size.height());
    painter.setPen(QPen(Qt::black, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    clipToSheet();
    setFont(u"Arial"_s, 8);
}

void Page::setUnit(Unit unit) { unitSize = unitSizes[int(unit)]; }

// ---- text ----

void Page::setFont(const QString& family, double points, bool bold)
{
    QFont font = namedFont(family, points);
    font.setBold(bold);
    setFont(font, points);
}

void Page::setFont(const QFont& font, double points)
{
    QFont onPaper = font;
    onPaper.setPixelSize(qRound(points * twipsPerPoint));
    onPaper.setHintingPreference(QFont::PreferNoHinting); // so that lines break alike on every device
    painter.setFont(onPaper);
}

double Page::textWidth(const QString& text) const
{
    return QFontMetricsF(painter.font()).horizontalAdvance(text) / unitSize;
}

double Page::textHeight() const { return QFontMetricsF(painter.font()).height() / unitSize; }

QString Page::textWithin(const QString& text, double room) const
{
    return QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, room * unitSize);
}

void Page::moveTo(double x, double y) { pen = QPointF(x, y) * unitSize; }

void Page::print(const QString& text)
{
    const QFontMetricsF metrics(painter.font());
    if (!text.isEmpty() && reaches({pen, QSizeF(metrics.horizontalAdvance(text), metrics.height())}))
        painter.drawText(pen + QPointF(0, metrics.ascent()), text);
    pen = {0, pen.y() + metrics.height()};
}

// ---- pictures and lines ----

void Page::picture(const QRectF& place, const QImage& image)
{
    if (reaches(inTwips(place)))
        painter.drawImage(inTwips(place), image);
}

void Page::drawing(const QRectF& place, QSizeF drawnSize, const std::function<void(QPainter&)>& draw)
{
    const QRectF room = inTwips(place);
    if (drawnSize.isEmpty() || !reaches(room))
        return;
    painter.save();
    painter.translate(room.topLeft());
    painter.scale(room.width() / drawnSize.width(), room.height() / drawnSize.height());
    draw(painter);
    painter.restore();
}

void Page::line(QPointF from, QPointF to)
{
    const double half = lineWidth / 2;
    if (reaches(inTwips(QRectF(from, to).normalized()).adjusted(-half, -half, half, half)))
        painter.drawLine(from * unitSize, to * unitSize);
}

void Page::frame(const QRectF& place)
{
    if (reaches(inTwips(place)))
        painter.drawRect(inTwips(place));
}

void Page::circle(QPointF centre, double radius)
{
    const QPointF corner(radius, radius);
    if (reaches(inTwips({centre - corner, centre + corner})))
        painter.drawEllipse(centre * unitSize, radius * unitSize, radius * unitSize);
}

void Page::clipTo(const QRectF& place)
{
    painter.setClipRect(inTwips(place).intersected(QRectF(QPointF(), size)));
}

void Page::clipToSheet() { painter.setClipRect(QRectF(QPointF(), size)); }

// ---- sheets ----

void Page::newPage() { sheetPending = true; }

void Page::endDoc() { ended = true; }

/// Whether anything drawn there is seen. Begins the sheet that is still to come.
bool Page::reaches(const QRectF& place)
{
    if (ended || !place.intersects(QRectF(QPointF(), size)))
        return false;
    if (!sheetPending)
        return true;
    auto* paged = dynamic_cast<QPagedPaintDevice*>(painter.device());
    if (paged)
        sheetPending = !paged->newPage();
    return paged;
}

QRectF Page::inTwips(const QRectF& place) const
{
    return {place.topLeft() * unitSize, place.size() * unitSize};
}

// ---- what becomes of a drawing ----

QSizeF landscape(QSizeF sheet) { return sheet.height() > sheet.width() ? sheet.transposed() : sheet; }

QSizeF usualSheet()
{
    const bool inches = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize::size(inches ? QPageSize::Letter : QPageSize::A4, QPageSize::Point);
}

QByteArray pdfOf(QSizeF sheet, const QString& title, const PageDrawing& draw)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setCreator(u"Tallymoor"_s);
    writer.setResolution(dotsPerInch);
    QPageLayout layout(QPageSize(sheet, QPageSize::Point, {}, QPageSize::ExactMatch), QPageLayout::Portrait,
                       {});
    layout.setMode(QPageLayout::FullPageMode);
    writer.setPageLayout(layout);
    QPainter painter;
    if (!painter.begin(&writer))
        throw RuntimeError(deviceError);
    Page page(painter, sheet);
    draw(page);
    painter.end();
    return bytes;
}

QImage pictureOf(QSizeF sheet, QSize room, const PageDrawing& draw)
{
    QImage picture(sheet.scaled(room, Qt::KeepAspectRatio).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    Page page(painter, sheet);
    draw(page);
    return picture;
}
