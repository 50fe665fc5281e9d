// A page that is drawn by coordinates, as on a printer: the same drawing becomes a PDF file, a printer's job
// or a picture.
//
//     const QByteArray pdf = pdfOf(sheet, u"Cards"_s, [](Page& page) {
//         page.setFont(u"Arial"_s, 14);
//         page.moveTo(page.width() * 0.08, page.height() * 0.08);
//         page.print(u"Bär"_s);
//     });
#pragma once

#include <QByteArray>
#include <QFont>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>

class QPainter;

class Page {
public:
    /// What one unit of every measure is: a twip is a twentieth of a point, a point a 72nd of an inch.
    enum class Unit { twips, points };

    /// `paper` paints on a device that is the sheet from edge to edge; `sheet` is the sheet's size in points.
    Page(QPainter& paper, QSizeF sheet);

    void setUnit(Unit unit);
    double width() const { return size.width() / unitSize; }
    double height() const { return size.height() / unitSize; }

    /// `points` is the font's size, whatever the unit. A font begins as "Arial", 8 points.
    void setFont(const QString& family, double points, bool bold = false);
    void setFont(const QFont& font, double points);
    double textWidth(const QString& text) const;
    /// The height of one line of text.
    double textHeight() const;
    /// The text, cut with "…" where it is longer than `room`.
    QString textWithin(const QString& text, double room) const;

    /// The pen, where print() begins.
    void moveTo(double x, double y);
    double currentX() const { return pen.x() / unitSize; }
    double currentY() const { return pen.y() / unitSize; }
    /// Prints the line of text with its top left corner at the pen. The pen moves to the left edge of the
    /// line below.
    void print(const QString& text);

    /// The picture stretched to the rectangle.
    void picture(const QRectF& place, const QImage& image);
    /// The same for what is drawn in an area of `drawnSize`, in its own measures: lines and texts stay sharp.
    void drawing(const QRectF& place, QSizeF drawnSize, const std::function<void(QPainter&)>& draw);
    void line(QPointF from, QPointF to);
    /// The outline of the rectangle.
    void frame(const QRectF& place);
    void circle(QPointF centre, double radius);

    /// What is drawn from now on is cut at the rectangle; nothing ever leaves the sheet.
    void clipTo(const QRectF& place);
    void clipToSheet();

    /// The next drawing begins a new sheet; without one there is no new sheet. A picture shows the first
    /// sheet only.
    void newPage();
    /// Ends the document; nothing is drawn any more.
    void endDoc();

private:
    bool reaches(const QRectF& place);
    QRectF inTwips(const QRectF& place) const;

    QPainter& painter;
    QSizeF size; // twips
    double unitSize = 1;
    QPointF pen; // twips
    bool sheetPending = false;
    bool ended = false;
};

using PageDrawing = std::function<void(Page&)>;

/// The sheet with its long side across.
QSizeF landscape(QSizeF sheet);

/// The default sheet of the system's country, upright, in points: A4 or Letter.
QSizeF usualSheet();

/// The drawing as the bytes of a PDF file. Raises what the drawing raises.
QByteArray pdfOf(QSizeF sheet, const QString& title, const PageDrawing& draw);

/// The drawing as a picture of a white sheet that fits into `room` pixels.
QImage pictureOf(QSizeF sheet, QSize room, const PageDrawing& draw);
