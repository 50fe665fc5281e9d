#include "controls/wizardPages.h"

#include "controls/answerButtons.h"
#include "controls/dialogParts.h"
#include "support/freshStart.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A text, two options, a page that can be skipped, another text.
struct Wizard : AnswerDialog {
    Wizard()
        : AnswerDialog(new AnswerButtons)
        , OKbut(*answers->ok)
    {
        auto* column = new QVBoxLayout(this);
        for (QWidget* part : std::initializer_list<QWidget*>{&pages, &nextBut, &prevBut, answers})
            column->addWidget(part);
        QWidget* const Frame[] = {new QWidget, new QWidget, new QWidget, new QWidget};
        name = new QLineEdit(Frame[0]);
        bars = new QRadioButton(Frame[1]);
        pie = new QRadioButton(Frame[1]);
        title = new QLineEdit(Frame[3]);
        pie->setChecked(true);
        pages.setPages({{Frame[0], name, &nextBut, nullptr},
                        {Frame[1], bars, &nextBut, &prevBut},
                        {Frame[2], nullptr, &nextBut, &prevBut},
                        {Frame[3], title, &OKbut, &prevBut}});
        onClick(&nextBut, [this] { pages.goOn(); });
        onClick(&prevBut, [this] { pages.goBack(); });
        onClick(&OKbut, [this] { ++finished; });
        pages.goTo(0);
        show();
        activateWindow();
    }

    /// The page and its enabled buttons.
    QString state() const
    {
        return property("Tag").toString() + (prevBut.isEnabled() ? u" back"_s : u""_s) +
               (nextBut.isEnabled() ? u" next"_s : u""_s) + (OKbut.isEnabled() ? u" ok"_s : u""_s);
    }

    WizardPages pages{*this};
    QPushButton nextBut, prevBut;
    QPushButton& OKbut;
    QLineEdit *name, *title;
    QRadioButton *bars, *pie;
    int finished = 0;
};

} // namespace

using WizardOfPages = Fresh;

TEST_F(WizardOfPages, IsWalkedThroughWithReturnAlone)
{
    Wizard wizard;
    const struct {
        QString state;
        QWidget* focus;
    } steps[] = {{u"0 next"_s, wizard.name},
                 {u"1 back next"_s, wizard.pie},
                 {u"2 back next"_s, &wizard.nextBut},
                 {u"3 back ok"_s, wizard.title}};
    for (const auto& step : steps) {
        EXPECT_EQ(wizard.state(), step.state);
        EXPECT_EQ(wizard.focusWidget(), step.focus);
        EXPECT_EQ(wizard.finished, 0);
        QTest::keyClick(wizard.focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(wizard.finished, 1);
    wizard.pages.goOn();
    EXPECT_EQ(wizard.state(), u"3 back ok"_s);
}

TEST_F(WizardOfPages, SkipsWhatItIsToldToAndComesBackTheSameWay)
{
    Wizard wizard;
    QList<int> seen;
    wizard.pages.landing = [](int number, int step) { return number == 2 ? number + step : number; };
    wizard.pages.shown = [&](int number) { seen.append(number); };
    for (QPushButton* button :
         {&wizard.nextBut, &wizard.nextBut, &wizard.prevBut, &wizard.prevBut, &wizard.prevBut})
        QTest::mouseClick(button, Qt::LeftButton);
    wizard.pages.goBack();
    EXPECT_EQ(seen, QList<int>({1, 3, 1, 0}));
    EXPECT_EQ(wizard.state(), u"0 next"_s);
    EXPECT_EQ(wizard.focusWidget(), wizard.name);
}
