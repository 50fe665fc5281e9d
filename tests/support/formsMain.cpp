// Tests that drive windows, offscreen.
#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
