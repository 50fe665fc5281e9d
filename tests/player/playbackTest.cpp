#include "player/playback.h"

#include <gtest/gtest.h>

namespace {

/// A glide with a press, then a drag that is dropped half-way through the scene.
Lesson glides()
{
    Scene first{{}, 4, {}, {{1, {0, 0}}, {2, {100, 40}, Press::right}}};
    Scene second{{}, 3, {}, {{1, {0, 40}, Press::drag}, {2, {80, 40}, Press::drop}}};
    return {{}, {200, 100}, {first, second}};
}

} // namespace

TEST(Playback, ThePointerGlidesAndPresses)
{
    const Lesson lesson = glides();
    EXPECT_FALSE(pointerAt(lesson, {0, 0.5}));
    struct {
        Moment moment;
        double x;
        double ring; // its growth, -1 for none
    } const cases[] = {
        {{0, 1}, 0, -1},      {{0, 1.25}, 15.625, -1}, {{0, 1.5}, 50, -1}, {{0, 2}, 100, 0},
        {{0, 2.5}, 100, 0.5}, {{0, 3}, 100, -1},       {{1, 0}, 100, -1},  {{1, 0.5}, 50, -1},
        {{1, 1}, 0, 0.4},     {{1, 1.25}, 20, 0.4},    {{1, 2}, 80, 0},    {{1, 3}, 80, -1},
    };
    for (const auto& [moment, x, ring] : cases) {
        const auto pointer = pointerAt(lesson, moment);
        ASSERT_TRUE(pointer);
        EXPECT_NEAR(pointer->place.x(), x, 0.001) << moment.scene << ", " << moment.second;
        EXPECT_NEAR(pointer->ring ? pointer->ring->growth : -1, ring, 0.001)
            << moment.scene << ", " << moment.second;
        EXPECT_EQ(pointer->ring && pointer->ring->right, moment.scene == 0 && ring >= 0);
    }
}

TEST(Playback, GoesOnThroughTheScenesToItsEnd)
{
    const Lesson lesson = glides();
    Playback playback(lesson);
    playback.advance(5);
    EXPECT_EQ(playback.shown().scene, 1U);
    EXPECT_EQ(playback.shown().second, 1);
    playback.turn();
    playback.advance(1);
    EXPECT_EQ(playback.shown().second, 1) << "paused";
    playback.turn();
    playback.advance(60);
    EXPECT_EQ(playback.shown().second, 3);
    EXPECT_TRUE(playback.atEnd());
    playback.turn();
    EXPECT_EQ(playback.shown().scene, 0U);
    EXPECT_FALSE(playback.isPaused());
}

TEST(Playback, StepsFromSceneToScene)
{
    const Lesson lesson = glides();
    Playback playback(lesson);
    playback.stepBack();
    EXPECT_EQ(playback.shown().scene, 0U);
    playback.advance(2);
    playback.stepOn();
    EXPECT_EQ(playback.shown().scene, 1U);
    EXPECT_EQ(playback.shown().second, 0);
    playback.stepOn();
    EXPECT_TRUE(playback.atEnd());
    playback.stepBack();
    EXPECT_EQ(playback.shown().scene, 0U);
    playback.advance(1);
    EXPECT_EQ(playback.shown().second, 1) << "goes on after the end";
}

TEST(Playback, StillsShowWhatEachSceneEndsWith)
{
    const Lesson lesson = glides();
    Playback playback(lesson);
    playback.showStills();
    EXPECT_EQ(playback.shown().second, 4);
    EXPECT_EQ(playback.pointer()->place, QPointF(100, 40));
    EXPECT_TRUE(playback.pointer()->ring->right);
    playback.advance(3.9);
    EXPECT_EQ(playback.shown().scene, 0U) << "as long as the film";
    playback.advance(0.2);
    EXPECT_EQ(playback.shown().second, 3);
    EXPECT_EQ(playback.pointer()->place, QPointF(80, 40));
}
