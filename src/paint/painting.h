// The picture being painted and everything that the picture editor knows about it, without its window.
//
// A window reports the mouse to it and shows its state: the canvas, and over it the rubber bands,
// the guides, the text box and the lifted selection.
#pragma once

#include "paint/canvas.h"
#include "paint/palette.h"
#include "platform/table.h"

#include <array>

inline constexpr QSize canvasSize(318, 240);      // inside its frame, pixels
inline constexpr QSize canvasOuterSize(320, 242); // with its frame
inline constexpr int longestText = 64;            // characters of Text1

/// The mouse at one moment, in canvas pixels. A drag goes on beyond the canvas.
struct MouseAt {
    QPoint at;
    bool pressed = true;  // any button
    bool shifted = false; // any key that changes what the mouse does
};

/// The rubber band of rectangles, ellipses and the selection.
struct Band {
    QRectF place;
    bool oval = false;
    bool visible = false;
    QRgb fillColour = 0;
};

struct BandLine {
    QPointF from;
    QPointF to;
    bool visible = false;
};

/// Lines across the canvas through the snapped mouse.
struct Guides {
    double HorzRuler = 0; // y
    double vertRuler = 0; // x
    bool visible = false;
};

struct TextBox {
    QString text;
    double left = 0;
    double top = 0;
    double width = 102;
    double height = 0;
    QRgb foreColour = 0;
    bool visible = false;
};

/// An area lifted off the canvas, with a handle at each of its corners.
struct Selection {
    QImage selectedBitMap;
    QRectF place;
    bool visible = false;
    std::array<QPointF, 4> PicHandle; // their upper left corners
    bool handlesVisible = false;
};

struct Painting {
    Painting();

    Canvas Picture1{canvasSize};
    bool enabled = false; // Picture1 answers the mouse only after a tool has been clicked
    QImage undoPic;
    QImage brush;        // the spray pattern
    QImage OLEStretcher; // the last picture imported

    int currentTool = 0;
    int selectedColour = 0;
    int snapGrid = 12;
    bool guidesShown = true;
    double dragOffsetX = 0; // where the mouse went down
    double dragOffsetY = 0;

    Band box;
    BandLine DottyLine;
    Guides guides;
    TextBox Text1;
    Selection selection;
    Table<QRgb, numColours - 1> colourSwatch;
};

/// Keeps the picture as it is now, for undo().
void saveUndoImage(Painting& painting);
/// Back to what was there at the last mouse-down. Once more changes nothing.
void undo(Painting& painting);
