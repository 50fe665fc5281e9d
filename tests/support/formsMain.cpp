// Tests that drive windows, offscreen.
#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>
#include <QWidget>

namespace {

/// QTest's double click never releases the button, and the next test's clicks would go to the last one's
/// window. Both of QTest's ways, to a widget and to a window, remember buttons of their own.
class ReleasedMouse : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo&) override
    {
        EXPECT_EQ(QGuiApplication::modalWindow(), nullptr) << "a modal window is still there";
        QWidget nowhere;
        nowhere.show();
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            QTest::mouseRelease(&nowhere, button);
            QTest::mouseRelease(nowhere.windowHandle(), button);
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new ReleasedMouse);
    return RUN_ALL_TESTS();
}
