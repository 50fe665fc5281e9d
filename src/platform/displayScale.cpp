#include "platform/displayScale.h"

#include "platform/values.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr QSizeF leastRoom(1280, 700);
constexpr double steps = 4; // to 1
constexpr double smallestChosen = 0.5;
constexpr double largestChosen = 8;

double scaleOf(const QSize& screen)
{
    const double room = std::min(screen.width() / leastRoom.width(), screen.height() / leastRoom.height());
    return std::max(1.0, std::floor(room * steps) / steps);
}

} // namespace

double displayScale(const QList<QSize>& screens, const QString& setting)
{
    const double chosen = leadingNumber(setting);
    if (chosen >= smallestChosen && chosen <= largestChosen)
        return chosen;
    double scale = largestChosen;
    for (const QSize& screen : screens)
        scale = std::min(scale, scaleOf(screen));
    return screens.isEmpty() ? 1 : scale;
}
