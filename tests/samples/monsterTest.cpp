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
