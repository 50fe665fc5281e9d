// The tools of the picture editor, one row of a table for each: how it looks, and what it does with the
// mouse.
#pragma once

#include "paint/painting.h"

#include <optional>

enum class BandKind { none, rectangle, oval, line, text };

struct Tool {
    const char* name;            // for tips and screen readers
    const char* hint;            // how it is used
    const char* icon;            // names its picture, and with "Cursor" its cursor's
    QPoint hotSpot;              // of the cursor
    std::optional<QPoint> place; // of its button in the window, pixels; hidden tools have none
    int penWidth = 0;            // 0 leaves the pen as it is
    BandKind band = BandKind::none;
    bool guides = false;
    bool snaps = false;

    using Act = void (*)(Painting& painting, const MouseAt& mouse);
    Act down = nullptr; // null where the tool does nothing
    Act move = nullptr;
    Act up = nullptr;
};

inline constexpr int numTools = 13;
/// The row of a tool, 0..12. Raises 9 for any other.
const Tool& toolAt(int index);

/// Takes up a tool. Raises 9 as toolAt() does.
void selectTool(Painting& painting, int index);
/// What a click on a tool's button does: also lets the canvas answer the mouse.
void clickTool(Painting& painting, int index);
/// Takes a colour, 0..25, for pen, fill, spray and text. Raises 9 for any other.
void selectColour(Painting& painting, int index);
