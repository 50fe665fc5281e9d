// The selection tool: lifts an area off the canvas and leaves a hole. Its button is hidden.
#pragma once

struct MouseAt;
struct Painting;
class QRectF;

void openSelection(Painting& painting, const MouseAt& mouse);
void pullSelection(Painting& painting, const MouseAt& mouse);
void liftSelection(Painting& painting, const MouseAt& mouse);

/// Puts a handle outside each corner of the area.
void placeSelectionHandles(Painting& painting, const QRectF& area);
