// The picture editor as a child meets it, with mouse and keys.
#include "paint/picEdit.h"

#include "controls/forms.h"
#include "core/session.h"
#include "paint/canvasWidget.h"
#include "paint/paintButton.h"
#include "support/dialogs.h"
#include "support/files.h"

#include <QLabel>
#include <QLineEdit>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb darkRed = 0xFFC00000; // the first colour

class PictureEditing : public Fresh {
protected:
    PictureEditing() { session.editor.Picture1.image = plain({159, 120}, Qt::white); }

    /// The pupil opens the editor, acts, and has to leave it.
    static void edit(const std::function<void(picEdit&)>& act)
    {
        inDialog<picEdit>([act](picEdit& editor) {
            act(editor);
            EXPECT_FALSE(editor.isVisible());
        });
        openPictureEditor();
    }

    static void drag(picEdit& editor, QPoint from, QPoint to)
    {
        const QPoint frame(1, 1);
        QTest::mousePress(editor.Picture1, Qt::LeftButton, {}, from + frame);
        QMouseEvent move(QEvent::MouseMove, to + frame, editor.Picture1->mapToGlobal(to + frame),
                         Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(editor.Picture1, &move);
        QTest::mouseRelease(editor.Picture1, Qt::LeftButton, {}, to + frame);
    }
};

} // namespace

TEST_F(PictureEditing, TheCanvasAnswersOnlyOnceAToolWasClicked)
{
    edit([](picEdit& editor) {
        const QString advice = editor.hint->text();
        EXPECT_FALSE(editor.Picture1->isEnabled());
        QTest::mouseClick(editor.Picture1, Qt::LeftButton, {}, {50, 50});
        EXPECT_EQ(editor.painting.Picture1.point({49, 49}), white);
        press(editor.ToolPic[0]);
        EXPECT_NE(editor.hint->text(), advice);
        QTest::mouseClick(editor.Picture1, Qt::LeftButton, {}, {50, 50});
        EXPECT_EQ(editor.painting.Picture1.point({49, 49}), darkRed);
        press(editor, "YesBut");
    });
    edit([](picEdit& editor) {
        EXPECT_TRUE(editor.Picture1->isEnabled()) << "after OK it is only hidden";
        press(editor, "NoBut");
    });
    EXPECT_FALSE(isLoaded<picEdit>());
    edit([](picEdit& editor) {
        EXPECT_FALSE(editor.Picture1->isEnabled());
        editor.close();
    });
    EXPECT_TRUE(session.dialogResult.isEmpty());
}

TEST_F(PictureEditing, ReturnStampsATextAndOkStampsAnOpenOne)
{
    edit([](picEdit& editor) {
        press(editor.ToolPic[7]);
        QTest::mouseClick(editor.Picture1, Qt::LeftButton, {}, {30, 60});
        EXPECT_TRUE(editor.Text1->hasFocus());
        QTest::keyClicks(editor.Text1, u"Sun"_s);
        QTest::keyClick(editor.Text1, Qt::Key_Escape);
        EXPECT_TRUE(editor.Text1->isVisible());
        const QImage blank = editor.painting.Picture1.image;
        QTest::keyClick(editor.Text1, Qt::Key_Return);
        EXPECT_TRUE(editor.Text1->isHidden());
        EXPECT_NE(editor.painting.Picture1.image, blank);
        EXPECT_TRUE(editor.isVisible()) << "Return is no OK";
        press(editor.UndoBut);
        EXPECT_EQ(editor.painting.Picture1.image, blank) << "with the click that placed it";
        QTest::mouseClick(editor.Picture1, Qt::LeftButton, {}, {30, 60});
        QTest::keyClicks(editor.Text1, u"W"_s.repeated(70));
        EXPECT_EQ(editor.Text1->text().size(), 64);
        press(editor, "YesBut");
    });
    EXPECT_NE(session.editor.Picture1.image, plain({159, 120}, Qt::white));
}

TEST_F(PictureEditing, KeysTakeToolsDrawAndUndo)
{
    edit([](picEdit& editor) {
        QTest::keyClick(&editor, Qt::Key_4);
        EXPECT_EQ(editor.painting.currentTool, 3);
        EXPECT_TRUE(editor.ToolPic[3]->isChecked());
        EXPECT_TRUE(editor.Picture1->hasFocus());
        QTest::keyClick(editor.Picture1, Qt::Key_Space);
        for (const auto key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down})
            QTest::keyClick(editor.Picture1, key);
        EXPECT_TRUE(editor.Picture1->accessibleDescription().startsWith(u"Pen down, 182 from"_s));
        EXPECT_EQ(editor.painting.Picture1.point({160, 122}), white);
        QTest::keyClick(editor.Picture1, Qt::Key_Space);
        EXPECT_EQ(editor.painting.Picture1.point({160, 122}), darkRed);
        QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(editor.painting.Picture1.point({160, 122}), white);
        QTest::keyClick(&editor, Qt::Key_0);
        QTest::keyClick(editor.Picture1, Qt::Key_Space);
        EXPECT_EQ(editor.painting.Picture1.point({5, 5}), darkRed) << "the paint pot";
        editor.ToolPic[0]->setFocus();
        editor.ToolPic[0]->click();
        QTest::keyClick(editor.ToolPic[0], Qt::Key_Down);
        EXPECT_EQ(editor.painting.currentTool, 2) << "the one below";
        QTest::keyClick(&editor, Qt::Key_Escape);
        QTest::keyClick(editor.ToolPic[2], Qt::Key_Return);
        EXPECT_TRUE(editor.isVisible());
        press(editor, "NoBut");
    });
}

TEST_F(PictureEditing, PicturesComeInByImportAndDrop)
{
    const QString blue = inTestFolder(u"blue.png"_s);
    ASSERT_TRUE(plain({50, 40}, Qt::blue).save(blue));
    const QString text = inTestFolder(u"text.bmp"_s);
    putFile(text, "no picture");
    recorded.chosen = {QString(), text, blue, text};
    edit([&](picEdit& editor) {
        dropFile(*editor.Picture1, blue);
        const QImage& canvas = editor.painting.Picture1.image;
        EXPECT_EQ(canvas.pixel(9, 9), white) << "no tool was clicked";
        press(editor.ToolPic[9]);
        drag(editor, {5, 5}, {5, 5});
        const auto import = [&] {
            const auto left = recorded.chosen.size();
            press(editor.BtnImport);
            EXPECT_TRUE(QTest::qWaitFor([&] { return recorded.chosen.size() < left; }));
        };
        import();
        import();
        EXPECT_EQ(canvas.pixel(9, 9), darkRed) << "cancelled, then no picture and none before";
        import();
        EXPECT_EQ(canvas.pixel(9, 9), 0xFF0000FF);
        EXPECT_EQ(canvas.pixel(0, 9), darkRed);
        drag(editor, {5, 5}, {5, 5});
        import();
        EXPECT_EQ(canvas.pixel(9, 9), 0xFF0000FF) << "the last import once more";
        EXPECT_EQ(recorded.messages, QStringList()) << "in silence";
        dropFile(*editor.Picture1, text);
        EXPECT_EQ(recorded.messages.size(), 1);
        EXPECT_EQ(canvas.pixel(9, 9), 0xFF0000FF) << "the drawing stays";
        dropFile(*editor.Picture1, blue);
        EXPECT_EQ(canvas.pixel(0, 9), white);
        press(editor, "YesBut");
    });
    EXPECT_EQ(session.editor.Picture1.image.pixel(80, 60), 0xFF0000FF);
}

TEST_F(PictureEditing, SurvivesHandsThatDoAnythingAndTakesBackWhatTheyDrew)
{
    std::mt19937 chance(6);
    const auto below = [&chance](int end) { return int(chance() % unsigned(end)); };
    edit([&](picEdit& editor) {
        const auto anywhere = [&] {
            const int reach = below(20) == 0 ? 30000 : 20; // now and then far outside
            return QPoint(below(320 + 2 * reach) - reach, below(240 + 2 * reach) - reach);
        };
        const auto buttons = editor.findChildren<PaintButton*>();
        const Qt::Key keys[] = {Qt::Key_Space,  Qt::Key_Left, Qt::Key_Down, Qt::Key_Return,
                                Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_A,    Qt::Key_7};
        for (int act = 0; act < 1500; ++act) {
            QWidget* const focus = editor.focusWidget() ? editor.focusWidget() : &editor;
            switch (below(6)) {
            case 0:
                buttons[below(int(buttons.size()))]->click();
                break;
            case 1:
            case 2: {
                const QImage before = editor.painting.Picture1.image.copy();
                drag(editor, anywhere(), anywhere());
                if (editor.Picture1->isEnabled() && below(2)) {
                    undo(editor.painting);
                    ASSERT_EQ(editor.painting.Picture1.image, before)
                        << "tool " << editor.painting.currentTool;
                }
                break;
            }
            case 3:
                QTest::mousePress(editor.Picture1, below(2) ? Qt::LeftButton : Qt::RightButton, {},
                                  anywhere());
                break;
            case 4:
                if (focus->objectName() != u"YesBut"_s && focus->objectName() != u"NoBut"_s &&
                    focus->objectName() != u"BtnImport"_s)
                    QTest::keyClick(focus, keys[below(8)], below(2) ? Qt::ShiftModifier : Qt::NoModifier);
                else
                    editor.Picture1->setFocus();
                break;
            default:
                QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier);
            }
            ASSERT_TRUE(editor.isVisible());
            ASSERT_EQ(editor.painting.Picture1.image.size(), canvasSize);
            ASSERT_EQ(editor.Text1->isVisible(), editor.painting.Text1.visible);
            ASSERT_EQ(editor.Text1->text(), editor.painting.Text1.text);
        }
        press(editor, "NoBut");
    });
}
