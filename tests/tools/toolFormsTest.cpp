// The tools' dialogs, used with mouse and keys.
#include "tools/FrmSpeed.h"
#include "tools/findForm.h"
#include "tools/toolCommands.h"

#include "controls/forms.h"
#include "core/mainView.h"
#include "support/cards.h"
#include "support/dialogs.h"
#include "tools/pacing.h"
#include "tools/warnForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

class ToolForms : public Fresh {
protected:
    ToolForms()
    {
        animals({u"pear"_s, u"apple"_s}, {u"4"_s, u"10"_s});
        session.sortDirection = u"ABC"_s;
        mainView.showSpeedWindow = [] { speedChosen(9); };
    }

    static void pick(QWidget& dialog, const char* combo, const char* text)
    {
        part<QComboBox>(dialog, combo).setCurrentText(QLatin1String(text));
    }
};

} // namespace

TEST_F(ToolForms, SortByTheFieldPickedAndKeepTheDirectionForTheNextTime)
{
    inDialog([](QDialog& dialog) {
        EXPECT_EQ(part<QComboBox>(dialog, "sortCombo").currentText(), u"Name"_s);
        pick(dialog, "sortCombo", "Legs");
        part<QRadioButton>(dialog, "sortOpt1").click();
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    sortCommand();
    EXPECT_THAT(cardsByTop(), ElementsAre(2, 1));
    inDialog([](QDialog& dialog) {
        EXPECT_TRUE(part<QRadioButton>(dialog, "sortOpt1").isChecked());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    session.box[1].top = 5;
    sortCommand();
    EXPECT_EQ(session.box[1].top, 5) << "Escape cancels";
}

TEST_F(ToolForms, FindShowsItsRowsByTheWindowsHeight)
{
    findForm& find = form<findForm>();
    find.prepare();
    find.show();
    struct Step {
        const char* box;
        const char* word;
        int height;
        bool venn;
    };
    // Resetting the first word keeps the second one, and with it another height.
    constexpr Step steps[] = {{"andOr0", "and", 366, true},
                              {"andOr1", "or", 433, false},
                              {"andOr1", " ", 420, true},
                              {"andOr0", "or", 366, false},
                              {"andOr0", " ", 244, false}};
    for (const Step& each : steps) {
        pick(find, each.box, each.word);
        EXPECT_EQ(find.height(), each.height) << each.box << each.word;
        EXPECT_EQ(part<QCheckBox>(find, "vennTick").isVisible(), each.venn) << each.box << each.word;
        EXPECT_FALSE(session.vennTick) << "a tick that was hidden came back";
        part<QCheckBox>(find, "vennTick").setChecked(each.venn);
        for (auto* control : find.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            EXPECT_TRUE(control->isHidden() || control->y() < each.height)
                << control->objectName().toStdString();
    }
    pick(find, "andOr1", "and"); // kept below the window's edge
    pick(find, "andOr0", "and");
    EXPECT_TRUE(part<QWidget>(find, "valBox1").isVisible());
    EXPECT_FALSE(part<QWidget>(find, "valBox2").isVisible());
}

TEST_F(ToolForms, FindTakesOnlyNumbersForANumberFieldAndAnswersFromItsList)
{
    session.fieldUseList[2] = true;
    session.fieldListItem[2][3] = u"8"_s;
    findForm& find = form<findForm>();
    find.prepare();
    find.show();
    EXPECT_FALSE(part<QWidget>(find, "pullDownBut0").isVisible());
    pick(find, "fieldCombo0", "Legs");
    QTest::keyClicks(&part<QLineEdit>(find, "valBox0"), u"a-1,2.5"_s);
    EXPECT_EQ(session.findRow[0].value, u"-12.5"_s);
    press(find, "pullDownBut0");
    EXPECT_TRUE(part<QWidget>(find, "AnswerHolder").isVisible());
    press(find, "pullDownBut0");
    EXPECT_FALSE(part<QWidget>(find, "AnswerHolder").isVisible());
    press(find, "pullDownBut0");
    press(find, "possAnswer3");
    EXPECT_EQ(session.findRow[0].value, u"8"_s);
    EXPECT_FALSE(part<QWidget>(find, "AnswerHolder").isVisible());
}

TEST_F(ToolForms, TheSpeedWindowPausesResumesAndEndsARun)
{
    mainView.showSpeedWindow = [] { showSpeedWindow(nullptr); };
    beginRun();
    FrmSpeed& speed = form<FrmSpeed>();
    part<QSlider>(speed, "Slider1").setValue(8);
    EXPECT_EQ(session.run.animationSpeed, 5);
    press(speed, "BtnPause");
    EXPECT_EQ(session.run.animationSpeed, 0);
    press(speed, "BtnResume");
    EXPECT_EQ(session.run.animationSpeed, 5);
    speed.close();
    EXPECT_TRUE(session.run.stopped);
    EXPECT_FALSE(isLoaded<FrmSpeed>());
}

TEST_F(ToolForms, TheQuestionAboutACardGrowsWithItsLabelUpToTheScreen)
{
    const auto widthFor = [](const QString& label) {
        session.cardValue[1][1] = label;
        form<warnForm>().askAbout(1);
        return form<warnForm>().width();
    };
    EXPECT_EQ(widthFor(u"ox"_s), 4275 / 15);
    EXPECT_GT(widthFor(QString(60, u'x')), 4275 / 15);
    EXPECT_LT(widthFor(QString(5000, u'x')), 1280);
}
