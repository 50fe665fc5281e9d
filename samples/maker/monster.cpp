#include "monster.h"

#include "cardPicture.h"
#include "monsterScene.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <cmath>
#include <stdexcept>

namespace {

constexpr double groundLine = 116, middle = 79.5, pixelsPerCm = 0.86;

struct Figure {
    QRectF frame;             ///< of the body, without feet, arms, horns and wings
    QPainterPath body;        ///< its outline
    QColor fill, dark, light; ///< of the skin, of spots and stripes, of stars
};

// Bodies

QPainterPath ball(const QRectF& frame)
{
    QPainterPath path;
    path.addEllipse(frame);
    return path;
}

QPainterPath box(const QRectF& frame)
{
    QPainterPath path;
    path.addRoundedRect(frame, frame.width() * 0.24, frame.width() * 0.24);
    return path;
}

/// A symmetrical, smooth body, widest at `waist` (0 the top, 1 the bottom); `shoulder` and `hip` are its
/// fullness above and below.
QPainterPath smoothBody(const QRectF& frame, double waist, double shoulder, double hip)
{
    const double half = frame.width() / 2, x = frame.center().x();
    const double y = frame.top() + frame.height() * waist;
    const double up = y - frame.top(), down = frame.bottom() - y;
    QPainterPath path(QPointF(x, frame.top()));
    path.cubicTo(x + half * shoulder, frame.top(), x + half, y - up * 0.6, x + half, y);
    path.cubicTo(x + half, y + down * hip, x + half * hip, frame.bottom(), x, frame.bottom());
    path.cubicTo(x - half * hip, frame.bottom(), x - half, y + down * hip, x - half, y);
    path.cubicTo(x - half, y - up * 0.6, x - half * shoulder, frame.top(), x, frame.top());
    return path;
}

QPainterPath egg(const QRectF& frame) { return smoothBody(frame, 0.6, 0.62, 0.56); }

QPainterPath pear(const QRectF& frame)
{
    const double half = frame.width() / 2, x = frame.center().x(), top = frame.top(), tall = frame.height();
    QPainterPath path(QPointF(x, top));
    for (const int side : {1, -1}) {
        QPainterPath outline(QPointF(x, top));
        outline.cubicTo(x + side * half * 0.66, top, x + side * half * 0.66, top + tall * 0.28,
                        x + side * half * 0.72, top + tall * 0.42);
        outline.cubicTo(x + side * half * 0.8, top + tall * 0.54, x + side * half, top + tall * 0.6,
                        x + side * half, top + tall * 0.78);
        outline.cubicTo(x + side * half, top + tall * 0.95, x + side * half * 0.8, top + tall, x, top + tall);
        outline.lineTo(x, top);
        path = path.united(outline);
    }
    return path.simplified();
}

struct Shape {
    double widthToHeight;
    QPainterPath (*outline)(const QRectF& frame);
};

const QHash<QString, Shape> shapes{
    {"Ball", {1.0, ball}}, {"Box", {0.86, box}}, {"Egg", {0.84, egg}}, {"Pear", {0.92, pear}}};

struct Colours {
    QColor fill, dark, light;
};

const QHash<QString, Colours> coats{
    {"Blue", {sky, "#1F6FB5", paper}},         {"Green", {grass, "#3F8A1E", paper}},
    {"Orange", {"#FF9F43", "#D65A0E", paper}}, {"Pink", {"#F78FB3", "#D93A66", paper}},
    {"Purple", {"#A98BE0", "#6A40B0", paper}}, {"Yellow", {sun, "#E58E00", "#E58E00"}},
};

template <class Value>
Value wordOf(const QHash<QString, Value>& table, const QString& word)
{
    const auto found = table.find(word);
    if (found == table.end())
        throw std::runtime_error("a monster can't be " + word.toStdString());
    return *found;
}

Figure figureOf(const Monster& monster)
{
    const Shape shape = wordOf(shapes, monster.body);
    const Colours coat = wordOf(coats, monster.colour);
    const double tall = monster.height * pixelsPerCm, feet = 4, wide = (tall - feet) * shape.widthToHeight;
    const QRectF frame(middle - wide / 2, groundLine - tall, wide, tall - feet);
    return {frame, shape.outline(frame), coat.fill, coat.dark, coat.light};
}

/// The first point inside the body on the way from `start` in steps of `step`.
QPointF surface(const QPainterPath& body, QPointF start, QPointF step)
{
    for (int i = 0; i < 400 && !body.contains(start); ++i)
        start += step;
    return start;
}

// Parts, from the back to the front

void drawWings(QPainter& painter, const Figure& figure)
{
    const double room = middle - figure.frame.width() / 2; // to the edge of the picture
    const double size = qMin(qMax(25.0, figure.frame.height() * 0.62), room);
    QPen pen = inkPen();
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(QColor("#DDF1FB"));
    for (const int side : {1, -1}) {
        painter.save();
        const double y = figure.frame.top() + figure.frame.height() * 0.42;
        painter.translate(surface(figure.body, {middle + side * 80, y}, {side * -0.5, 0}));
        painter.scale(side * size, size);
        QPainterPath wing(QPointF(-0.25, 0.0));
        wing.cubicTo(0.05, -0.5, 0.4, -0.85, 0.98, -0.8);
        wing.cubicTo(1.02, -0.6, 0.95, -0.45, 0.8, -0.34);
        wing.cubicTo(0.82, -0.16, 0.72, -0.06, 0.56, -0.02);
        wing.cubicTo(0.54, 0.14, 0.4, 0.22, 0.2, 0.18);
        wing.cubicTo(0.05, 0.24, -0.1, 0.2, -0.25, 0.2);
        wing.closeSubpath();
        painter.drawPath(wing);
        painter.restore();
    }
}

/// The horns' places, in widths of the head from its middle.
const QList<double> hornPlaces[] = {{}, {0}, {-0.31, 0.31}, {-0.44, 0, 0.44}, {-0.44, -0.15, 0.15, 0.44}};

void drawHorns(QPainter& painter, const Figure& figure, int count)
{
    const double size = qMax(10.0, figure.frame.height() * 0.2);
    const double temples = figure.frame.top() + figure.frame.height() * 0.22;
    const double head = 2 * (middle - surface(figure.body, {0, temples}, {0.5, 0}).x());
    QPainterPath horn(QPointF(-size * 0.34, size * 0.35));
    horn.quadTo(-size * 0.3, -size * 0.4, 0, -size);
    horn.quadTo(size * 0.3, -size * 0.4, size * 0.34, size * 0.35);
    horn.closeSubpath();
    painter.setPen(inkPen());
    painter.setBrush(QColor("#FFF0B8"));
    for (const double place : hornPlaces[count]) {
        painter.save();
        const double x = middle + place * head;
        painter.translate(surface(figure.body, {x, figure.frame.top() - 2}, {0, 0.5}));
        painter.rotate(place * 68);
        painter.drawPath(horn);
        painter.restore();
    }
}

/// An arm from `shoulder` to its hand at `end`; it sags a little.
void drawArm(QPainter& painter, QPointF shoulder, QPointF end, const QColor& fill)
{
    QPainterPath arm(shoulder);
    arm.quadTo(QPointF((shoulder.x() + end.x()) / 2, shoulder.y() + 5), end);
    QPen pen = inkPen(8.5);
    painter.strokePath(arm, pen);
    painter.setPen(inkPen());
    painter.setBrush(fill);
    painter.drawEllipse(end, 4.6, 4.6);
    pen.setColor(fill);
    pen.setWidthF(3.5);
    painter.strokePath(arm, pen);
}

void drawArms(QPainter& painter, const Figure& figure, int count)
{
    const double reach = qMax(15.0, figure.frame.height() * 0.3);
    for (const int side : {-1, 1}) {
        const int here = side < 0 ? (count + 1) / 2 : count / 2;
        for (int i = 0; i < here; ++i) {
            const double place = i - (here - 1) / 2.0; // 0 in the middle, negative above it
            const double y = figure.frame.top() + figure.frame.height() * (0.62 + place * 0.2);
            const double lift = here == 1 ? 0.35 : 0.07 - place * 0.63;
            const QPointF skin = surface(figure.body, {middle + side * 80, y}, {side * -0.5, 0});
            drawArm(painter, skin - QPointF(side * 4, 0), skin + QPointF(side * reach, -reach * lift),
                    figure.fill);
        }
    }
}

void drawFeet(QPainter& painter, const Figure& figure)
{
    painter.setPen(inkPen());
    painter.setBrush(figure.dark);
    const double apart = figure.frame.width() * 0.22, wide = qMax(6.0, figure.frame.width() * 0.15);
    for (const int side : {-1, 1})
        painter.drawEllipse(QPointF(middle + side * apart, groundLine - 4.5), wide, 4.5);
}

QPainterPath star(QPointF centre, double radius)
{
    QPainterPath path;
    for (int i = 0; i < 10; ++i) {
        const double angle = i * M_PI / 5 - M_PI / 2, r = i % 2 ? radius * 0.45 : radius;
        const QPointF point = centre + r * QPointF(std::cos(angle), std::sin(angle));
        i ? path.lineTo(point) : path.moveTo(point);
    }
    path.closeSubpath();
    return path;
}

QPainterPath spot(QPointF centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

/// Marks in rows, every second row moved by half a step.
QPainterPath scattered(const QRectF& frame, QPainterPath (*mark)(QPointF, double), double radius, double step)
{
    QPainterPath marks;
    int row = 0;
    for (double y = frame.bottom() - step * 0.45; y > frame.top(); y -= step * 0.8, ++row)
        for (double x = middle - step * (row % 2 ? 3.5 : 3); x < frame.right() + step; x += step)
            marks.addPath(mark({x, y}, radius));
    return marks;
}

QPainterPath stripes(const QRectF& frame)
{
    QPainterPath marks;
    const double step = qMax(11.0, frame.height() / 5);
    for (double y = frame.bottom() - step * 0.75; y > frame.top(); y -= step)
        marks.addRect(frame.left(), y - step * 0.2, frame.width(), step * 0.45);
    return marks;
}

QPainterPath plain(const QRectF&) { return {}; }

QPainterPath spots(const QRectF& frame)
{
    return scattered(frame, spot, qMax(3.2, frame.height() * 0.062), qMax(11.0, frame.height() * 0.24));
}

QPainterPath stars(const QRectF& frame)
{
    return scattered(frame, star, qMax(4.8, frame.height() * 0.088), qMax(13.0, frame.height() * 0.27));
}

const QHash<QString, QPainterPath (*)(const QRectF&)> patterns{
    {"Plain", plain}, {"Spots", spots}, {"Stars", stars}, {"Stripes", stripes}};

void drawBody(QPainter& painter, const Figure& figure, const QString& pattern)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(figure.fill);
    painter.drawPath(figure.body);
    painter.setBrush(pattern == "Stars" ? figure.light : figure.dark);
    painter.drawPath(wordOf(patterns, pattern)(figure.frame).intersected(figure.body));
    painter.setPen(inkPen());
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(figure.body);
}

struct EyeSet {
    double size;            ///< radius of an eye, in heights of the body
    QList<QPointF> centres; ///< from the face's middle, in radii of an eye
};

const EyeSet eyeSets[] = {
    {0.21, {{0, 0}}},
    {0.155, {{-1.15, 0}, {1.15, 0}}},
    {0.125, {{-1.15, 0.85}, {1.15, 0.85}, {0, -1.1}}},
    {0.118, {{-1.15, -1.15}, {1.15, -1.15}, {-1.15, 1.15}, {1.15, 1.15}}},
    {0.108, {{-1.15, -1.15}, {1.15, -1.15}, {-2.3, 1.0}, {0, 1.0}, {2.3, 1.0}}},
};

void drawFace(QPainter& painter, const Figure& figure, int eyes)
{
    const EyeSet& set = eyeSets[eyes - 1];
    const double tall = figure.frame.height(), radius = qMax(5.0, tall * set.size);
    const QPointF face(middle, figure.frame.top() + tall * 0.4);
    for (const QPointF& place : set.centres) {
        const QPointF centre = face + place * radius;
        painter.setPen(inkPen(2.5));
        painter.setBrush(Qt::white);
        painter.drawEllipse(centre, radius, radius);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(centre + QPointF(0, radius * 0.15), radius * 0.48, radius * 0.48);
    }
    const double wide = qMax(7.0, tall * 0.17), y = figure.frame.top() + tall * 0.74;
    QPainterPath mouth(QPointF(middle - wide, y));
    mouth.quadTo(QPointF(middle, y + wide * 0.35), QPointF(middle + wide, y));
    mouth.quadTo(QPointF(middle, y + wide * 1.9), QPointF(middle - wide, y));
    painter.setPen(inkPen(2.5));
    painter.setBrush(QColor("#7A2840"));
    painter.drawPath(mouth);
}

} // namespace

Monster monsterOf(const SampleCard& card)
{
    return {card["Body"],         card["Colour"],        card["Pattern"],           card["Eyes"].toInt(),
            card["Arms"].toInt(), card["Horns"].toInt(), card["Height cm"].toInt(), card["Can fly"] == "Yes"};
}

QImage drawMonster(const Monster& monster)
{
    const auto within = [](int number, int least, int most) { return number >= least && number <= most; };
    if (!within(monster.eyes, 1, 5) || !within(monster.arms, 0, 6) || !within(monster.horns, 0, 4))
        throw std::runtime_error("a monster has one to five eyes, up to six arms and up to four horns");
    const Figure figure = figureOf(monster);
    QImage picture = blankPicture();
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawScene(painter, monster.body, figure.fill);
    if (monster.flies)
        drawWings(painter, figure);
    drawHorns(painter, figure, monster.horns);
    drawArms(painter, figure, monster.arms);
    drawBody(painter, figure, monster.pattern);
    drawFeet(painter, figure);
    drawFace(painter, figure, monster.eyes);
    painter.end();
    drawEdge(picture);
    return picture;
}
