// Tests of the core library. They need a QGuiApplication for measuring text, but no widgets.
#include <gmock/gmock.h>

#include <QGuiApplication>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
