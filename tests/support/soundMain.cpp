// Tests with sound output. They also prove that the process can end after a sound.
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
