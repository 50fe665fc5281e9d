#include "platform/colour.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 systemColourBit = 0x80000000;

// The desktop's numbered colours, from 0: what our palette has nearest to each.
constexpr std::array systemColours = {
    QPalette::Mid,        // scroll bar
    QPalette::Dark,       // desktop
    QPalette::Highlight,  // title of the active window
    QPalette::Mid,        // title of other windows
    QPalette::Button,     // menu bar
    QPalette::Base,       // window background
    QPalette::Shadow,     // window frame
    QPalette::ButtonText, // menu text
    QPalette::Text,       // window text
    QPalette::HighlightedText,
    QPalette::Button, // border of the active window
    QPalette::Button, // border of other windows
    QPalette::Dark,   // application workspace
    QPalette::Highlight,
    QPalette::HighlightedText,
    QPalette::Button,          // button face, 15
    QPalette::Dark,            // button shadow
    QPalette::PlaceholderText, // disabled text
    QPalette::ButtonText,
    QPalette::WindowText, // title text of other windows
    QPalette::Light,      // button highlight
    QPalette::Shadow,     // dark shadow of solid shapes
    QPalette::Midlight,   // their light side
    QPalette::ToolTipText,
    QPalette::ToolTipBase,
};

std::optional<quint32> colourNumber(const QString& text)
{
    const QString word = text.trimmed();
    bool ok = false;
    if (word.startsWith("&H"_L1, Qt::CaseInsensitive)) {
        const qsizetype end = word.endsWith(u'&') ? word.size() - 1 : word.size();
        const quint32 number = QStringView(word).sliced(2, std::max<qsizetype>(end, 2) - 2).toUInt(&ok, 16);
        return ok ? std::optional(number) : std::nullopt;
    }
    const qint64 number = word.toLongLong(&ok); // a negative one is a desktop colour read as a signed number
    if (!ok || number < std::numeric_limits<qint32>::min() || number > std::numeric_limits<quint32>::max())
        return std::nullopt;
    return static_cast<quint32>(number);
}

} // namespace

QColor colourOf(const QString& text)
{
    const quint32 number = colourNumber(text).value_or(0);
    if (!(number & systemColourBit))
        return QColor(number & 0xFF, number >> 8 & 0xFF, number >> 16 & 0xFF);

    const quint32 index = number & ~systemColourBit;
    if (index >= systemColours.size())
        return Qt::black;
    return QGuiApplication::palette().color(QPalette::Active, systemColours[index]);
}

QString colourValue(const QColor& colour)
{
    return QString::number(colour.red() | colour.green() << 8 | colour.blue() << 16);
}
