#include "platform/fonts.h"

#include <QFontDatabase>

namespace {

struct Substitute {
    const char* wanted;
    const char* family;
    int stretch; // percent that make it as wide as the wanted one
};

constexpr Substitute substitutes[] = {
    {"Comic Sans MS", "Comic Neue", 114},
    {"Arial", "Liberation Sans", 100},
};

} // namespace

QFont namedFont(const QString& family, double points)
{
    QFont font(family);
    font.setPointSizeF(points);
    if (QFontDatabase::hasFamily(family))
        return font;
    for (const auto& [wanted, substitute, stretch] : substitutes) {
        if (family == QLatin1String(wanted)) {
            font.setFamily(QLatin1String(substitute));
            font.setStretch(stretch);
        }
    }
    return font;
}
