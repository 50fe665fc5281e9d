// The colours of the picture editor, in the order of their numbers.
#pragma once

#include <QPoint>
#include <QRgb>

#include <array>

struct PaletteColour {
    QRgb colour;
    QPoint place; // of its swatch in the window, pixels
    const char* name;
};

inline constexpr int numColours = 26;
extern const std::array<PaletteColour, numColours> paletteColours;
