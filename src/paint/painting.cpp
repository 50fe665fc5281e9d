#include "paint/painting.h"

#include <algorithm>

Painting::Painting()
{
    std::transform(paletteColours.begin(), paletteColours.end(), colourSwatch.begin(),
                   [](const PaletteColour& entry) { return entry.colour; });
}

void saveUndoImage(Painting& painting) { painting.undoPic = painting.Picture1.image; }

void undo(Painting& painting)
{
    if (!painting.undoPic.isNull())
        painting.Picture1.image = painting.undoPic;
}
