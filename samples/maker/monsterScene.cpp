#include "monsterScene.h"

#include "cardPicture.h"

#include <QHash>
#include <QPainterPath>

namespace {

constexpr double horizon = 96;

/// The coat's colour mixed with white: 0 is white, 1 the coat's colour.
QColor thinned(const QColor& coat, double strength)
{
    const auto part = [strength](int value) { return qRound(255 - (255 - value) * strength); };
    return {part(coat.red()), part(coat.green()), part(coat.blue())};
}

struct Far {
    double x, width, height;
};
const Far farShapes[] = {{20, 56, 40}, {70, 40, 26}, {104, 36, 32}, {144, 50, 46}};

void hill(QPainterPath& path, const Far& far)
{
    path.addEllipse(QPointF(far.x, horizon), far.width * 0.6, far.height);
}

void tower(QPainterPath& path, const Far& far)
{
    for (const double part : {-0.25, 0.25}) {
        const double height = far.height * (part < 0 ? 1.1 : 0.75);
        path.addRect(far.x + (part - 0.2) * far.width, horizon - height, far.width * 0.4, height);
    }
}

void bush(QPainterPath& path, const Far& far)
{
    for (const double part : {-0.3, 0.0, 0.3})
        path.addEllipse(QPointF(far.x + part * far.width, horizon), far.width * 0.22,
                        far.height * (part == 0.0 ? 1.05 : 0.75));
}

void peak(QPainterPath& path, const Far& far)
{
    path.moveTo(far.x - far.width * 0.6, horizon);
    path.quadTo(far.x - far.width * 0.1, horizon - far.height * 0.5, far.x, horizon - far.height * 1.2);
    path.quadTo(far.x + far.width * 0.1, horizon - far.height * 0.5, far.x + far.width * 0.6, horizon);
}

const QHash<QString, void (*)(QPainterPath&, const Far&)> farShapeOf{
    {"Ball", hill}, {"Box", tower}, {"Egg", bush}, {"Pear", peak}};

} // namespace

void drawScene(QPainter& painter, const QString& body, const QColor& coat)
{
    painter.fillRect(QRectF({}, pictureSize), thinned(coat, 0.22));
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    if (const auto shape = farShapeOf.value(body))
        for (const Far& far : farShapes)
            shape(path, far);
    painter.fillPath(path, thinned(coat, 0.36));
    painter.fillRect(QRectF(0, horizon, pictureSize.width(), pictureSize.height() - horizon),
                     thinned(coat, 0.6));
}
