#include "platform/colour.h"

#include "support/freshStart.h"

#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

TEST(Colour, IsReadAsTheSettingsSpellIt)
{
    const std::pair<const char*, QColor> cases[] = {
        {"255", Qt::red},  {"16711680", Qt::blue},  {" 65280 ", Qt::green},
        {"&HFF", Qt::red}, {"&hff0000&", Qt::blue}, {"16777216", Qt::black},
    };
    for (const auto& [text, colour] : cases)
        EXPECT_EQ(colourOf(QString::fromLatin1(text)), colour) << text;
    for (const char* text :
         {"", "Not specified", "red", "&H", "&", "&HXYZ", "1.5", "99999999999", "&H1FFFFFFFF"})
        EXPECT_EQ(colourOf(QString::fromLatin1(text)), QColor(Qt::black)) << text;
}

TEST(Colour, OfTheDesktopComesFromItsPalette)
{
    const QPalette palette = QGuiApplication::palette();
    for (const char* face : {"&H8000000F", "2147483663", "-2147483633"})
        EXPECT_EQ(colourOf(QString::fromLatin1(face)), palette.color(QPalette::Button)) << face;
    EXPECT_EQ(colourOf(u"&H8000000D"_s), palette.color(QPalette::Highlight));
    EXPECT_EQ(colourOf(u"&H80000019"_s), QColor(Qt::black)) << "beyond the last of them";
}
