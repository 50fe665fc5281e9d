// The tools' dialogs, used with mouse and keys.
#include "tools/FrmSpeed.h"
#include "tools/findForm.h"
#include "tools/toolCommands.h"

#include "board/mode.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "support/cards.h"
#include "support/files.h"
#include "support/freshStart.h"
#include "tools/groupForm.h"
#include "tools/moveForm.h"
#include "tools/pacing.h"
#include "tools/sortForm.h"
#include "tools/warnForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

class ToolForms : public Fresh {
protected:
    ToolForms()
    {
        session.numFields = 2;
        session.fieldName[1] = u"Name"_s;
        session.fieldName[2] = u"Legs"_s;
        cards({u"pear"_s, u"apple"_s});
        session.fieldType[2] = u"123"_s;
        session.sortDirection = u"ABC"_s;
        mainView.showSpeedWindow = [] { speedChosen(9); };
    }

    template <class Control>
    static Control& part(QWidget& dialog, const char* name)
    {
        auto* found = dialog.findChild<Control*>(QLatin1String(name));
        if (found == nullptr)
            throw std::runtime_error(std::string("no ") + name);
        return *found;
    }

    static void pick(QWidget& dialog, const char* combo, const char* text)
    {
        part<QComboBox>(dialog, combo).setCurrentText(QLatin1String(text));
    }

    static void press(QWidget& dialog, const char* button)
    {
        QTest::mouseClick(&part<QPushButton>(dialog, button), Qt::LeftButton);
    }

    static void answer(const std::function<void(QDialog&)>& step) { recorded.dialogSteps.push_back(step); }
};

} // namespace

TEST_F(ToolForms, SortByTheFieldPickedAndKeepTheDirectionForTheNextTime)
{
    session.cardValue[1][2] = u"4"_s;
    session.cardValue[2][2] = u"10"_s;
    answer([](QDialog& dialog) {
        EXPECT_EQ(part<QComboBox>(dialog, "sortCombo").currentText(), u"Name"_s);
        pick(dialog, "sortCombo", "Legs");
        part<QRadioButton>(dialog, "sortOpt1").click();
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    sortCommand();
    EXPECT_EQ(session.chosenField, 2);
    EXPECT_THAT(cardsByTop(), ElementsAre(2, 1));

    answer([](QDialog& dialog) {
        EXPECT_TRUE(part<QRadioButton>(dialog, "sortOpt1").isChecked());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    session.box[1].top = 5;
    sortCommand();
    EXPECT_EQ(session.box[1].top, 5) << "Escape cancels";
}

TEST_F(ToolForms, FindTellsTheNumberOfCards)
{
    answer([](QDialog& dialog) {
        EXPECT_EQ(dialog.height(), 244);
        EXPECT_FALSE(part<QWidget>(dialog, "vennTick").isVisible());
        pick(dialog, "fieldCombo0", "Name");
        pick(dialog, "compBox0", "includes");
        QTest::keyClicks(&part<QLineEdit>(dialog, "valBox0"), u"pp"_s);
        press(dialog, "YesBut");
    });
    findCommand();
    EXPECT_THAT(recorded.messages, ElementsAre(u"Find Results|Number of cards found: 1"_s));
    EXPECT_EQ(session.board.searchTitle.text, u"Search for: Name includes pp "_s);
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

TEST_F(ToolForms, AllOfferTheVideoAboutEnteringData)
{
    for (QWidget* dialog : std::initializer_list<QWidget*>{&form<findForm>(), &form<sortForm>(),
                                                           &form<groupForm>(), &form<moveForm>()})
        press(*dialog, "BtnVid");
    EXPECT_EQ(recorded.started, QStringList(4, inTestFolder(u"Videos/Entering Data.exe /shc"_s)));
}

TEST_F(ToolForms, TheSpeedWindowPausesResumesAndEndsARun)
{
    QWidget window;
    window.resize(1000, 700);
    mainView.showSpeedWindow = [&window] { showSpeedWindow(&window); };
    beginRun();
    FrmSpeed& speed = form<FrmSpeed>();
    part<QSlider>(speed, "Slider1").setValue(8);
    EXPECT_EQ(session.run.animationSpeed, 5);
    press(speed, "BtnPause");
    EXPECT_EQ(session.run.animationSpeed, 0);
    EXPECT_FALSE(part<QWidget>(speed, "BtnPause").isVisible());
    part<QSlider>(speed, "Slider1").setValue(1);
    press(speed, "BtnResume");
    EXPECT_EQ(session.run.animationSpeed, 0.1);
    speed.close();
    EXPECT_TRUE(session.run.stopped);
    EXPECT_FALSE(isLoaded<FrmSpeed>());
}

TEST_F(ToolForms, TheQuestionAboutACardGrowsWithItsLabel)
{
    session.cardValue[1][1] = u"ox"_s;
    form<warnForm>().askAbout(1);
    EXPECT_EQ(form<warnForm>().width(), 4275 / 15);
    session.cardValue[1][1] = QString(60, u'x');
    form<warnForm>().askAbout(1);
    EXPECT_GT(form<warnForm>().width(), 4275 / 15);
    session.cardValue[1][1] = QString(5000, u'x');
    form<warnForm>().askAbout(1);
    EXPECT_LT(form<warnForm>().width(), 1280);
}
