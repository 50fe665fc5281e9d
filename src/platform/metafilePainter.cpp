#include "platform/metafilePainter.h"

#include "platform/bitmapFile.h"
#include "platform/errors.h"
#include "platform/fonts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QtEndian>
#include <QtMath>

#include <cmath>

extern "C" {
#include <libwmf/api.h>
#include <libwmf/macro.h>
}

namespace {

constexpr int fontPixels = 100; // texts are drawn at this size and scaled
constexpr double largestText = 1e6;
constexpr qsizetype largestBitmap = 64 << 20; // bytes

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

// Pens and brushes

QPen penOf(wmfDC* context)
{
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine,      Qt::DashLine, Qt::DotLine,  Qt::DashDotLine,
                                       Qt::DashDotDotLine, Qt::NoPen,    Qt::SolidLine};
    auto* pen = WMF_DC_PEN(context);
    const auto style = unsigned(WMF_PEN_STYLE(pen));
    return {colourOf(*WMF_PEN_COLOR(pen)), std::abs(double(WMF_PEN_WIDTH(pen))),
            style < std::size(styles) ? styles[style] : Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
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
    painter.setPen(penOf(context));
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
    filling(library, shape->dc)
        .drawRoundedRect(between(shape->TL, shape->BR), std::abs(double(shape->width)),
                         std::abs(double(shape->height)));
}

void drawEllipse(wmfAPI* library, wmfDrawArc_t* shape)
{
    filling(library, shape->dc).drawEllipse(between(shape->TL, shape->BR));
}

struct ArcSpan {
    QRectF area;
    int start; // sixteenths of a degree, against the clock from three o'clock
    int length;
};

/// The library tells both ends from the middle of the ellipse, to be joined with the clock. In a mirrored
/// window it tells them wrongly; nothing can be done about that here.
ArcSpan spanOf(const wmfDrawArc_t& shape)
{
    const QRectF area = between(shape.TL, shape.BR);
    const auto angle = [&area](const wmfD_Coord& way) {
        return qRadiansToDegrees(std::atan2(-way.y * area.width(), way.x * area.height()));
    };
    const double from = angle(shape.end);
    double length = angle(shape.start) - from;
    if (length <= 0)
        length += 360;
    return {area, int(from * 16), int(length * 16)};
}

void drawArc(wmfAPI* library, wmfDrawArc_t* shape)
{
    const auto [area, start, length] = spanOf(*shape);
    outlining(library, shape->dc).drawArc(area, start, length);
}

void drawChord(wmfAPI* library, wmfDrawArc_t* shape)
{
    const auto [area, start, length] = spanOf(*shape);
    filling(library, shape->dc).drawChord(area, start, length);
}

void drawPie(wmfAPI* library, wmfDrawArc_t* shape)
{
    const auto [area, start, length] = spanOf(*shape);
    filling(library, shape->dc).drawPie(area, start, length);
}

void drawLine(wmfAPI* library, wmfDrawLine_t* line)
{
    outlining(library, line->dc).drawLine(pointOf(line->from), pointOf(line->to));
}

void drawPolyline(wmfAPI* library, wmfPolyLine_t* line)
{
    outlining(library, line->dc).drawPolyline(polygonOf(line->pt, line->count));
}

void drawPolygon(wmfAPI* library, wmfPolyLine_t* shape)
{
    filling(library, shape->dc).drawPolygon(polygonOf(shape->pt, shape->count), fillRule(shape->dc));
}

void drawPolygons(wmfAPI* library, wmfPolyPoly_t* shape)
{
    QPainterPath path;
    path.setFillRule(fillRule(shape->dc));
    for (int i = 0; i < shape->npoly; ++i) {
        path.addPolygon(polygonOf(shape->pt[i], shape->count[i]));
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

/// Where the pixels begin in a bare bitmap, 0 when its header makes no sense.
quint32 pixelsFrom(const QByteArray& bare)
{
    constexpr quint32 oldHeader = 12, plainHeader = 40, longestHeader = 124, bitFields = 3;
    if (bare.size() < qsizetype(oldHeader))
        return 0;
    const auto header = qFromLittleEndian<quint32>(bare.constData());
    if (header < oldHeader || header > longestHeader || qsizetype(header) > bare.size())
        return 0;
    if (header < plainHeader)
        return header;
    const auto bits = qFromLittleEndian<quint16>(bare.constData() + 14);
    const auto compression = qFromLittleEndian<quint32>(bare.constData() + 16);
    const auto told = qFromLittleEndian<quint32>(bare.constData() + 32);
    if (bits > 8)
        return header + (compression == bitFields && header == plainHeader ? 12 : 0);
    return header + 4 * (told > 0 && told <= (1u << bits) ? told : 1u << bits);
}

QByteArray fileHeader(quint32 size, quint32 pixels)
{
    QByteArray header("BM");
    for (const quint32 value : {size, 0u, pixels}) {
        const quint32 little = qToLittleEndian(value);
        header.append(reinterpret_cast<const char*>(&little), sizeof little);
    }
    return header;
}

void readBitmap(wmfAPI* library, wmfBMP_Read_t* record)
{
    constexpr quint32 headerSize = 14;
    record->bmp.data = nullptr;
    record->bmp.width = record->bmp.height = 0;
    const QByteArray bare = bareBitmap(library, *record);
    const quint32 pixels = pixelsFrom(bare);
    const QByteArray header = fileHeader(headerSize + quint32(bare.size()), headerSize + pixels);
    ignoringErrors({[&] {
        const QImage read = decodeBitmap(header + bare);
        device(library).bitmaps.append(read);
        record->bmp.width = quint16(read.width());
        record->bmp.height = quint16(read.height());
        record->bmp.data = reinterpret_cast<void*>(device(library).bitmaps.size());
    }});
}

void freeBitmap(wmfAPI*, wmfBMP* bitmap) { bitmap->data = nullptr; }

void drawBitmap(wmfAPI* library, wmfBMP_Draw_t* drawn)
{
    const auto number = reinterpret_cast<qsizetype>(drawn->bmp.data);
    if (number < 1 || number > device(library).bitmaps.size())
        return;
    const QRectF part(drawn->crop.x, drawn->crop.y, drawn->crop.w, drawn->crop.h);
    const QSizeF size(double(drawn->pixel_width) * part.width(), double(drawn->pixel_height) * part.height());
    painterOf(library).drawImage(QRectF(pointOf(drawn->pt), size), device(library).bitmaps[number - 1], part);
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
