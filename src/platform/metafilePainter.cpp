#include "platform/metafilePainter.h"

#include "platform/errors.h"
#include "platform/fonts.h"
#include "platform/metafileArc.h"
#include "platform/metafileBitmap.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <cmath>

extern "C" {
#include <libwmf/api.h>
#include <libwmf/macro.h>
}

namespace {

constexpr int fontPixels = 100; // texts are drawn at this size and scaled
constexpr double largestText = 1e6;
constexpr qsizetype largestBitmap = 64 << 20; // bytes of one in the file, and of all in memory

MetafileDevice& device(wmfAPI* library) { return *static_cast<MetafileDevice*>(library->user_data); }
QPainter& painterOf(wmfAPI* library) { return *device(library).painter; }

QColor colourOf(const wmfRGB& colour) { return {colour.r, colour.g, colour.b}; }
QPointF pointOf(const wmfD_Coord& place) { return {double(place.x), double(place.y)}; }
QRectF between(const wmfD_Coord& corner, const wmfD_Coord& opposite)
{
    return QRectF(pointOf(corner), pointOf(opposite)).normalized();
}

QPolygonF polygonOf(const wmfD_Coord* points, int count)
{
    QPolygonF made;
    for (int i = 0; i < count; ++i)
        made << pointOf(points[i]);
    return made;
}

Qt::FillRule fillRule(wmfDC* context)
{
    return WMF_DC_POLYFILL(context) == WINDING ? Qt::WindingFill : Qt::OddEvenFill;
}

// Work: what is too much for a picture ends the play. A few bytes of a file can ask for a lot of it.

/// The part of the area that lies on the sheet, in its pixels.
QRectF onSheet(wmfAPI* library, const QRectF& area)
{
    const QPainter& painter = painterOf(library);
    const QRectF sheet(0, 0, painter.device()->width(), painter.device()->height());
    return painter.transform().mapRect(area) & sheet;
}

constexpr double pixelWork = 2; // to fill a pixel

/// Counts an area that is filled, and so many strokes as long as half its rim.
void countArea(wmfAPI* library, const QRectF& area, double strokes, double workOfPixel = pixelWork)
{
    constexpr double strokeWork = 30; // of a pixel's length
    const QRectF seen = onSheet(library, area);
    device(library).work +=
        seen.width() * seen.height() * workOfPixel + strokes * (seen.width() + seen.height()) * strokeWork;
}

/// Counts a line through these points, whose inside may be filled.
void countPolygon(wmfAPI* library, const QPolygonF& points)
{
    constexpr double edgeWork = 300;
    constexpr double lengthWork = 50; // of a pixel
    const QTransform toSheet = painterOf(library).transform();
    double length = 0;
    for (qsizetype i = 1; i < points.size(); ++i) {
        const QPointF edge = toSheet.map(points[i]) - toSheet.map(points[i - 1]);
        length += edge.manhattanLength();
    }
    device(library).work += double(points.size()) * edgeWork + length * lengthWork;
    countArea(library, points.boundingRect(), 0);
}

// Pens and brushes

/// Dashes too short to be seen are drawn as a line: there could be millions of them.
Qt::PenStyle visibleStyle(wmfAPI* library, double width, Qt::PenStyle style)
{
    constexpr double leastWidth = 0.25; // pixels
    const QTransform toSheet = painterOf(library).transform();
    const bool cosmetic = width == 0;
    const bool visible = cosmetic || width * std::sqrt(std::abs(toSheet.determinant())) >= leastWidth;
    return visible || style == Qt::NoPen ? style : Qt::SolidLine;
}

QPen penOf(wmfAPI* library, wmfDC* context)
{
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine,      Qt::DashLine, Qt::DotLine,  Qt::DashDotLine,
                                       Qt::DashDotDotLine, Qt::NoPen,    Qt::SolidLine};
    auto* pen = WMF_DC_PEN(context);
    const auto number = unsigned(WMF_PEN_STYLE(pen));
    const Qt::PenStyle style = number < std::size(styles) ? styles[number] : Qt::SolidLine;
    const double width = std::abs(double(WMF_PEN_WIDTH(pen)));
    return {colourOf(*WMF_PEN_COLOR(pen)), width, visibleStyle(library, width, style), Qt::RoundCap,
            Qt::RoundJoin};
}

QBrush brushOf(wmfDC* context)
{
    constexpr Qt::BrushStyle hatches[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                          Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    auto* brush = WMF_DC_BRUSH(context);
    if (WMF_BRUSH_STYLE(brush) == BS_NULL)
        return Qt::NoBrush;
    const auto hatch = unsigned(WMF_BRUSH_HATCH(brush));
    const bool hatched = WMF_BRUSH_STYLE(brush) == BS_HATCHED && hatch < std::size(hatches);
    return {colourOf(*WMF_BRUSH_COLOR(brush)), hatched ? hatches[hatch] : Qt::SolidPattern};
}

QPainter& outlining(wmfAPI* library, wmfDC* context)
{
    QPainter& painter = painterOf(library);
    painter.setPen(penOf(library, context));
    painter.setBrush(Qt::NoBrush);
    return painter;
}

QPainter& filling(wmfAPI* library, wmfDC* context)
{
    QPainter& painter = outlining(library, context);
    painter.setBrush(brushOf(context));
    return painter;
}

// Shapes

void drawRectangle(wmfAPI* library, wmfDrawRectangle_t* shape)
{
    countArea(library, between(shape->TL, shape->BR), 2);
    filling(library, shape->dc)
        .drawRoundedRect(between(shape->TL, shape->BR), std::abs(double(shape->width)),
                         std::abs(double(shape->height)));
}

void drawEllipse(wmfAPI* library, wmfDrawArc_t* shape)
{
    countArea(library, between(shape->TL, shape->BR), 2);
    filling(library, shape->dc).drawEllipse(between(shape->TL, shape->BR));
}

struct ArcSpan {
    QRectF area;
    int start; // sixteenths of a degree, against the clock from three o'clock
    int length;
};

/// Arcs run against the clock as seen on the sheet, also where the window is mirrored. The ends are taken
/// from the file: the library pushes them to the ellipse's frame, and in a mirrored window all to one corner.
ArcSpan spanOf(wmfAPI* library, const wmfDrawArc_t& shape)
{
    const QRectF area = between(shape.TL, shape.BR);
    countArea(library, area, 2);
    const ArcEnds told{area.center() + pointOf(shape.end), area.center() + pointOf(shape.start)};
    const ArcEnds ends = arcEndsOf(device(library).file, library->bbuf.tell(library->buffer_data),
                                   pointOf(shape.TL), pointOf(shape.BR))
                             .value_or(told);
    const auto angle = [&area](QPointF end) {
        const QPointF way = end - area.center();
        return qRadiansToDegrees(std::atan2(-way.y() * area.width(), way.x() * area.height()));
    };
    const double from = angle(ends.first);
    double length = angle(ends.last) - from;
    if (length <= 0)
        length += 360;
    return {area, int(from * 16), int(length * 16)};
}

void drawArc(wmfAPI* library, wmfDrawArc_t* shape)
{
    const auto [area, start, length] = spanOf(library, *shape);
    outlining(library, shape->dc).drawArc(area, start, length);
}

void drawChord(wmfAPI* library, wmfDrawArc_t* shape)
{
    const auto [area, start, length] = spanOf(library, *shape);
    filling(library, shape->dc).drawChord(area, start, length);
}

void drawPie(wmfAPI* library, wmfDrawArc_t* shape)
{
    const auto [area, start, length] = spanOf(library, *shape);
    filling(library, shape->dc).drawPie(area, start, length);
}

void drawLine(wmfAPI* library, wmfDrawLine_t* line)
{
    countPolygon(library, {pointOf(line->from), pointOf(line->to)});
    outlining(library, line->dc).drawLine(pointOf(line->from), pointOf(line->to));
}

void drawPolyline(wmfAPI* library, wmfPolyLine_t* line)
{
    const QPolygonF points = polygonOf(line->pt, line->count);
    countPolygon(library, points);
    outlining(library, line->dc).drawPolyline(points);
}

void drawPolygon(wmfAPI* library, wmfPolyLine_t* shape)
{
    const QPolygonF corners = polygonOf(shape->pt, shape->count);
    countPolygon(library, corners);
    filling(library, shape->dc).drawPolygon(corners, fillRule(shape->dc));
}

void drawPolygons(wmfAPI* library, wmfPolyPoly_t* shape)
{
    QPainterPath path;
    path.setFillRule(fillRule(shape->dc));
    for (int i = 0; i < shape->npoly; ++i) {
        const QPolygonF corners = polygonOf(shape->pt[i], shape->count[i]);
        countPolygon(library, corners);
        path.addPolygon(corners);
        path.closeSubpath();
    }
    filling(library, shape->dc).drawPath(path);
}

void drawPixel(wmfAPI* library, wmfDrawPixel_t* pixel)
{
    painterOf(library).fillRect(
        QRectF(pointOf(pixel->pt), QSizeF(double(pixel->pixel_width), double(pixel->pixel_height))),
        colourOf(pixel->color));
}

/// Only the operations that paint an area in one colour.
void fillArea(wmfAPI* library, wmfROP_Draw_t* area)
{
    constexpr unsigned blackness = 0x42, whiteness = 0xFF0062, patternCopy = 0xF00021;
    const QRectF place = between(area->TL, area->BR);
    countArea(library, place, 0);
    if (area->ROP == blackness || area->ROP == whiteness)
        painterOf(library).fillRect(place, area->ROP == blackness ? Qt::black : Qt::white);
    else if (area->ROP == patternCopy)
        painterOf(library).fillRect(place, brushOf(area->dc));
}

// Bitmaps

/// The bytes of a bitmap without its file's header, from memory or from the metafile.
QByteArray bareBitmap(wmfAPI* library, const wmfBMP_Read_t& record)
{
    if (record.length <= 0 || record.length > largestBitmap)
        return {};
    if (record.buffer)
        return {reinterpret_cast<const char*>(record.buffer), qsizetype(record.length)};
    QByteArray bytes;
    const long place = library->bbuf.tell(library->buffer_data);
    library->bbuf.seek(library->buffer_data, record.offset);
    while (bytes.size() < record.length) {
        const int byte = library->bbuf.read(library->buffer_data);
        if (byte == EOF)
            break;
        bytes.append(char(byte));
    }
    library->bbuf.seek(library->buffer_data, place);
    return bytes;
}

void readBitmap(wmfAPI* library, wmfBMP_Read_t* record)
{
    record->bmp.data = nullptr;
    record->bmp.width = record->bmp.height = 0;
    constexpr double decodingWork = 10; // of a pixel
    const QByteArray bare = bareBitmap(library, *record);
    device(library).work += bareBitmapPixels(bare) * decodingWork;
    ignoringErrors({[&] {
        const QImage read = decodeBareBitmap(bare);
        MetafileDevice& to = device(library);
        if (to.bitmapBytes + read.sizeInBytes() > largestBitmap)
            return;
        to.bitmapBytes += read.sizeInBytes();
        to.bitmaps.append(read);
        record->bmp.width = quint16(read.width());
        record->bmp.height = quint16(read.height());
        record->bmp.data = reinterpret_cast<void*>(device(library).bitmaps.size());
    }});
}

/// The bitmap with that handle, null when there is none any more.
QImage* bitmapOf(wmfAPI* library, const wmfBMP& bitmap)
{
    const auto number = reinterpret_cast<qsizetype>(bitmap.data);
    QList<QImage>& all = device(library).bitmaps;
    return number >= 1 && number <= all.size() ? &all[number - 1] : nullptr;
}

void freeBitmap(wmfAPI* library, wmfBMP* bitmap)
{
    if (QImage* found = bitmapOf(library, *bitmap)) {
        device(library).bitmapBytes -= found->sizeInBytes();
        *found = {};
    }
    bitmap->data = nullptr;
}

void drawBitmap(wmfAPI* library, wmfBMP_Draw_t* drawn)
{
    const QImage* bitmap = bitmapOf(library, drawn->bmp);
    if (!bitmap || bitmap->isNull())
        return;
    const QRectF part(drawn->crop.x, drawn->crop.y, drawn->crop.w, drawn->crop.h);
    const QSizeF size(double(drawn->pixel_width) * part.width(), double(drawn->pixel_height) * part.height());
    const QRectF place(pointOf(drawn->pt), size);
    countArea(library, place, 0, 5 * pixelWork); // smooth scaling is slower than a fill
    painterOf(library).drawImage(place, *bitmap, part);
}

// Text

QFont fontOf(const wmfFont& described)
{
    QFont font = namedFont(QString::fromLatin1(described.lfFaceName ? described.lfFaceName : "Arial"), 10);
    font.setPixelSize(fontPixels);
    font.setBold(described.lfWeight >= 600);
    font.setItalic(described.lfItalic != 0);
    font.setUnderline(described.lfUnderline != 0);
    return font;
}

void drawText(wmfAPI* library, wmfDrawText_t* text)
{
    const double height = std::abs(text->font_height);
    if (!text->str || !(height > 0 && height < largestText))
        return;
    constexpr double characterWork = 20'000;
    device(library).work += characterWork * double(qstrlen(text->str));
    auto* described = WMF_DC_FONT(text->dc);
    const double scale = height / fontPixels;
    QPainter& painter = painterOf(library);
    painter.save();
    painter.translate(pointOf(text->pt));
    painter.rotate(-qRadiansToDegrees(WMF_TEXT_ANGLE(described)));
    painter.scale(scale * (text->font_ratio > 0 ? text->font_ratio : 1), scale);
    painter.setFont(fontOf(*described));
    painter.setPen(colourOf(text->dc->textcolor));
    painter.drawText(QPointF(), QString::fromLatin1(text->str));
    painter.restore();
}

float textWidth(wmfAPI*, wmfFont* described, char* text)
{
    return float(QFontMetricsF(fontOf(*described)).horizontalAdvance(QString::fromLatin1(text)) / fontPixels);
}

void ignoreFont(wmfAPI*, wmfFont*) {}
void ignoreCall(wmfAPI*) {}
void ignoreFlood(wmfAPI*, wmfFlood_t*) {}
void ignoreUserData(wmfAPI*, wmfUserData_t*) {}
void ignoreRegion(wmfAPI*, wmfPolyRectangle_t*) {}

void connectTexts(wmfAPI* library)
{
    auto* fonts = static_cast<wmfFontData*>(wmf_malloc(library, sizeof(wmfFontData)));
    if (!fonts) {
        library->err = wmf_E_InsMem;
        return;
    }
    fonts->map = ignoreFont;
    fonts->stringwidth = textWidth;
    fonts->user_data = nullptr;
    library->font_data = fonts;
}

} // namespace

void connectMetafilePainter(_wmfAPI* library)
{
    auto& calls = *static_cast<wmfFunctionReference*>(library->function_reference);
    calls.device_open = calls.device_close = calls.device_begin = calls.device_end = ignoreCall;
    calls.flood_interior = calls.flood_exterior = ignoreFlood;
    calls.draw_pixel = drawPixel;
    calls.draw_pie = drawPie;
    calls.draw_chord = drawChord;
    calls.draw_arc = drawArc;
    calls.draw_ellipse = drawEllipse;
    calls.draw_line = drawLine;
    calls.poly_line = drawPolyline;
    calls.draw_polygon = drawPolygon;
    calls.draw_polypolygon = drawPolygons;
    calls.draw_rectangle = drawRectangle;
    calls.rop_draw = fillArea;
    calls.bmp_draw = drawBitmap;
    calls.bmp_read = readBitmap;
    calls.bmp_free = freeBitmap;
    calls.draw_text = drawText;
    calls.udata_init = calls.udata_copy = calls.udata_set = calls.udata_free = ignoreUserData;
    calls.region_frame = calls.region_paint = calls.region_clip = ignoreRegion;
    connectTexts(library);
}
