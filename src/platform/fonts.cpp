#include "platform/fonts.h"

#include <QFontDatabase>
#include <QHash>

namespace {

struct Substitute {
    const char* wanted;
    const char* family;
    int stretch; // percent, to make it as wide as the font asked for
};

constexpr Substitute substitutes[] = {
    {"Comic Sans MS", "Comic Neue", 114},
    {"Arial", "Liberation Sans", 100},
};

/// Cached: the lookup walks all installed families, and every card's face needs it.
bool isInstalled(const QString& family)
{
    static QHash<QString, bool> known;
    const auto found = known.constFind(family);
    return found != known.constEnd() ? *found : *known.insert(family, QFontDatabase::hasFamily(family));
}

} // namespace

QFont namedFont(const QString& family, double points)
{
    QFont font(family);
    font.setPointSizeF(points);
    if (isInstalled(family))
        return font;
    for (const auto& [wanted, substitute, stretch] : substitutes) {
        if (family == QLatin1String(wanted)) {
            font.setFamily(QLatin1String(substitute));
            font.setStretch(stretch);
        }
    }
    return font;
}
