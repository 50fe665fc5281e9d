#include "monster.h"

#include "cardPicture.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

const Monster plain{"Ball", "Blue", "Plain", 2, 2, 0, 80, false};

Monster with(const std::function<void(Monster&)>& change)
{
    Monster monster = plain;
    change(monster);
    return monster;
}

/// The first row of the outline of a monster without horns.
int topOf(const QImage& picture)
{
    int y = 5; // below the picture's edge
    while (y < picture.height() && picture.pixelColor(picture.width() / 2, y).lightness() > 100)
        ++y;
    return y;
}

} // namespace

TEST(Monsters, ShowEveryValueOfTheirCard)
{
    QList<QImage> pictures{drawMonster(plain)};
    const auto isNew = [&](const std::function<void(Monster&)>& change) {
        pictures.append(drawMonster(with(change)));
        return pictures.indexOf(pictures.last()) == pictures.size() - 1;
    };
    for (const char* body : {"Box", "Egg", "Pear"})
        EXPECT_TRUE(isNew([=](Monster& m) { m.body = body; })) << body;
    for (const char* colour : {"Green", "Orange", "Pink", "Purple", "Yellow"})
        EXPECT_TRUE(isNew([=](Monster& m) { m.colour = colour; })) << colour;
    for (const char* pattern : {"Spots", "Stars", "Stripes"})
        EXPECT_TRUE(isNew([=](Monster& m) { m.pattern = pattern; })) << pattern;
    for (const int eyes : {1, 3, 4, 5})
        EXPECT_TRUE(isNew([=](Monster& m) { m.eyes = eyes; })) << eyes;
    for (const int arms : {0, 1, 3, 4, 5, 6})
        EXPECT_TRUE(isNew([=](Monster& m) { m.arms = arms; })) << arms;
    for (const int horns : {1, 2, 3, 4})
        EXPECT_TRUE(isNew([=](Monster& m) { m.horns = horns; })) << horns;
    EXPECT_TRUE(isNew([](Monster& m) { m.flies = true; }));
}

TEST(Monsters, AreDrawnToScale)
{
    const auto tall = [](int height) {
        return topOf(drawMonster(with([=](Monster& m) { m.height = height; })));
    };
    EXPECT_NEAR(tall(60) - tall(80), tall(80) - tall(100), 1);
    EXPECT_GE(tall(80) - tall(100), 16) << "20 cm have to be seen on a card";
    EXPECT_GE(tall(100), 20) << "the name needs its place above";
}
