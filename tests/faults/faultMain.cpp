// Tests that break disks and kill processes.
#include "faults/effort.h"

#include <gmock/gmock.h>

#include <QGuiApplication>

#include <cstring>

Effort effort;

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "--long") == 0)
        effort = {1000, 300, 60, 300, 1};
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
