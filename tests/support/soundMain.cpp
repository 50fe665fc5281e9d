// Tests that are heard. Leaving the process after a sound is part of what they prove.
#include "platform/wavePlayer.h"

#include <gmock/gmock.h>

#include <QCoreApplication>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    const int result = RUN_ALL_TESTS();
    leaveSound();
    return result;
}
