#include "paint/spray.h"

#include "paint/blit.h"
#include "paint/painting.h"
#include "platform/desktop.h"

namespace {

constexpr int patternSize = 32; // pixels
constexpr int dots = 30;
constexpr int spread = 16; // they fall into the middle of the pattern
constexpr int margin = 8;
constexpr QRgb white = 0xFFFFFFFF;

int place() { return int(desktop.random() * spread + margin); }

} // namespace

void regenerateSprayBrush(Painting& painting)
{
    painting.brush = QImage(patternSize, patternSize, QImage::Format_RGB32);
    painting.brush.fill(white);
    for (int dot = 0; dot < dots; ++dot) {
        const int x = place();
        painting.brush.setPixel(x, place(), painting.Picture1.foreColour);
    }
}

void stampSprayBrush(Painting& painting, QPoint at)
{
    constexpr QPoint middle(patternSize / 2, patternSize / 2);
    transparentBlit(painting.Picture1.image, at - middle, painting.brush.size(), painting.brush, {}, white);
}
