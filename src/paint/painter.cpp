#include "paint/painter.h"

#include "paint/constraints.h"
#include "paint/tools.h"
#include "platform/stretching.h"

namespace {

/// The mouse as the tool takes it; the guides follow where there are any.
MouseAt followed(Painting& painting, const MouseAt& mouse)
{
    if (!toolAt(painting.currentTool).snaps)
        return mouse;
    MouseAt onGrid = mouse;
    onGrid.at = snapped(mouse.at, painting.snapGrid).toPoint();
    painting.guides.HorzRuler = onGrid.at.y();
    painting.guides.vertRuler = onGrid.at.x();
    return onGrid;
}

void act(Painting& painting, Tool::Act action, const MouseAt& mouse)
{
    const MouseAt taken = followed(painting, mouse);
    if (action)
        action(painting, taken);
}

} // namespace

void openPainting(Painting& painting, const QImage& cardPicture)
{
    painting.snapGrid = 12;
    painting.guidesShown = true;
    painting.undoPic = {};
    painting.Text1.visible = false;
    painting.Text1.text.clear();
    selectColour(painting, 0);
    selectTool(painting, 0);
    painting.Picture1.image =
        cardPicture.scaled(canvasSize).convertToFormat(QImage::Format_RGB32); // each pixel doubled
    saveUndoImage(painting);
}

QImage paintedCard(const Painting& painting, QSize cardSize)
{
    return stretched(painting.Picture1.image, cardSize);
}

void clearPainting(Painting& painting)
{
    painting.Picture1.image.fill(Qt::white);
    painting.undoPic = {};
}

void mouseDown(Painting& painting, const MouseAt& mouse)
{
    saveUndoImage(painting);
    act(painting, toolAt(painting.currentTool).down, mouse);
}

void mouseMove(Painting& painting, const MouseAt& mouse)
{
    act(painting, toolAt(painting.currentTool).move, mouse);
}

void mouseUp(Painting& painting, const MouseAt& mouse)
{
    act(painting, toolAt(painting.currentTool).up, mouse);
}

void importPicture(Painting& painting, const QImage& picture)
{
    if (!picture.isNull())
        painting.OLEStretcher = picture;
    if (!painting.OLEStretcher.isNull())
        painting.Picture1.paintPicture(painting.OLEStretcher, QRect(QPoint(1, 1), canvasOuterSize));
}

void dropPicture(Painting& painting, const QImage& picture)
{
    painting.Picture1.image.fill(Qt::white);
    importPicture(painting, picture);
}
