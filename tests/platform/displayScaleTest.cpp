#include "platform/displayScale.h"

#include <gtest/gtest.h>

TEST(DisplayScale, IsAsLargeAsTheSmallestScreenAllows)
{
    struct {
        QList<QSize> screens;
        const char* setting;
        double scale;
    } const cases[] = {
        {{{1024, 600}}, "auto", 1},
        {{{1366, 768}}, "auto", 1},
        {{{1600, 900}}, "auto", 1.25},
        {{{1920, 1080}}, "auto", 1.5},
        {{{1920, 800}}, "auto", 1},
        {{{3840, 2160}}, "", 3},
        {{{1920, 1080}, {1366, 768}}, "auto", 1},
        {{}, "auto", 1},
        {{{1366, 768}}, "1.5", 1.5},
        {{{3840, 2160}}, "0", 3},
        {{{1600, 900}}, "1000", 1.25},
    };
    for (const auto& [screens, setting, scale] : cases)
        EXPECT_EQ(displayScale(screens, setting), scale) << setting << ", " << screens.value(0).width();
}
