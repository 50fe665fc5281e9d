// The picture editor under a finger on a whiteboard.
#include "controls/forms.h"
#include "core/session.h"
#include "paint/canvasWidget.h"
#include "paint/paintButton.h"
#include "paint/picEdit.h"
#include "support/freshStart.h"

#include <QPointingDevice>
#include <QTest>
#include <QWindow>

namespace {

/// Puts a finger on the widget, moves it through the points and lifts it.
void stroke(QWidget& widget, const std::vector<QPoint>& points)
{
    static QPointingDevice* const board = QTest::createTouchDevice();
    QWindow* const window = widget.window()->windowHandle();
    const auto inWindow = [&](QPoint point) { return widget.mapTo(widget.window(), point); };
    QTest::touchEvent(window, board).press(0, inWindow(points.front()), window);
    for (const QPoint point : points)
        QTest::touchEvent(window, board).move(0, inWindow(point), window);
    QTest::touchEvent(window, board).release(0, inWindow(points.back()), window);
}

} // namespace

using FingerPainting = Fresh;

TEST_F(FingerPainting, AFingerTakesToolsAndColoursAndDraws)
{
    session.editor.Picture1.image = QImage(159, 120, QImage::Format_RGB32);
    session.editor.Picture1.image.fill(Qt::white);
    recorded.dialogSteps.push_back([](QDialog& dialog) {
        auto& editor = dynamic_cast<picEdit&>(dialog);
        const auto tap = [](QWidget* widget) { stroke(*widget, {widget->rect().center()}); };
        tap(editor.colourSwatch[10]);
        tap(editor.ToolPic[1]);
        stroke(*editor.Picture1, {{40, 40}, {80, 60}, {120, 40}});
        tap(editor.Picture1);
        for (const QPoint point : {QPoint(40, 40), {60, 50}, {80, 60}, {100, 50}, {120, 40}, {159, 120}})
            EXPECT_EQ(editor.painting.Picture1.point(point), 0xFF0000C0) << point.x();
        tap(editor.UndoBut);
        EXPECT_EQ(editor.painting.Picture1.point({159, 120}), 0xFFFFFFFF) << "the dot of the tap";
        EXPECT_EQ(editor.painting.Picture1.point({60, 50}), 0xFF0000C0);
        tap(editor.answers->ok);
    });
    openPictureEditor();
    EXPECT_EQ(session.dialogResult, QStringLiteral("OK"));
}
