#include "paint/palette.h"

namespace {

constexpr PaletteColour upper(int column, int red, int green, int blue, const char* name)
{
    return {qRgb(red, green, blue), QPoint(88 + 24 * column, 276), name};
}

constexpr PaletteColour lower(int column, int red, int green, int blue, const char* name)
{
    return {qRgb(red, green, blue), QPoint(88 + 24 * column, 300), name};
}

} // namespace

const std::array<PaletteColour, numColours> paletteColours{{
    upper(0, 192, 0, 0, "Dark red"),
    upper(1, 255, 0, 0, "Red"),
    upper(2, 255, 128, 128, "Light red"),
    upper(3, 192, 192, 0, "Dark yellow"),
    upper(4, 255, 255, 0, "Yellow"),
    upper(5, 255, 255, 128, "Light yellow"),
    upper(6, 0, 192, 0, "Dark green"),
    upper(7, 0, 255, 0, "Green"),
    upper(9, 0, 0, 128, "Navy blue"),
    upper(8, 128, 255, 128, "Light green"),
    upper(10, 0, 0, 192, "Blue"),
    upper(11, 128, 255, 255, "Light blue"),
    lower(6, 192, 64, 0, "Brown"),
    lower(7, 255, 128, 0, "Orange"),
    upper(12, 192, 255, 255, "Pale blue"),
    lower(0, 128, 0, 128, "Dark purple"),
    lower(1, 192, 0, 192, "Purple"),
    lower(2, 255, 0, 255, "Pink"),
    lower(3, 0, 0, 0, "Black"),
    lower(4, 128, 128, 128, "Grey"),
    lower(5, 255, 255, 255, "White"),
    lower(8, 255, 165, 74, "Light orange"),
    lower(9, 255, 192, 128, "Peach"),
    lower(10, 255, 192, 192, "Pale pink"),
    lower(11, 255, 170, 170, "Rose"),
    lower(12, 255, 149, 149, "Salmon"),
}};
